#pragma once

#include <string>
#include <vector>

namespace contentc {

/// A line of a source file.
struct SourcePlace {
    /// The file as shown to the author.
    std::string file;
    /// Counted from 1.
    int line = 1;

    bool operator==(const SourcePlace&) const = default;
};

enum class Severity { error, warning };

/// One thing to tell the author.
struct Diagnostic {
    SourcePlace place;
    Severity severity;
    std::string message;

    bool operator==(const Diagnostic&) const = default;
};

/// `file:line: message`, or `file:line: warning: message`.
std::string toLine(const Diagnostic& diagnostic);

/// Collects what is wrong with the sources. Compiling goes on after an error, so that all errors are found.
class Diagnostics {
  public:
    void error(const SourcePlace& place, std::string message);
    void warning(const SourcePlace& place, std::string message);

    bool hasErrors() const;

    /// Sorted by file and line, without repetitions: a fault in a page scaffold is found with every page.
    std::vector<Diagnostic> sorted() const;

  private:
    std::vector<Diagnostic> found_;
};

}  // namespace contentc
