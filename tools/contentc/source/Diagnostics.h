#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/Message.h"

namespace contentc {

/// A place in a source file.
struct SourcePlace {
    /// The file as shown to the author.
    std::string file;
    /// Counted from 1.
    int line = 1;
    /// In characters, counted from 1. 0 when it is not known or the whole line is meant.
    int column = 0;

    bool operator==(const SourcePlace&) const = default;
};

/// A file's name as the author would write it in the current folder.
std::string_view shownFile(std::string_view file);

/// The column of a place in a line of UTF-8; `offset` is in bytes.
int columnAt(std::string_view utf8Line, std::size_t offset);

/// An error keeps the data folder from being written, a warning only with `--strict`.
enum class Severity { error, warning };

/// One thing to tell the author.
struct Diagnostic {
    SourcePlace place;
    Severity severity;
    Phrase what;
    std::vector<Phrase> suggestions;

    /// Adds what to do about it.
    Diagnostic& suggest(const Message& message, MessageValues values = {});
    /// Suggests the one of the names that is most like `wanted`; nothing when none is like it. UTF-8.
    Diagnostic& suggestNearest(std::string_view wanted, const std::vector<std::string>& names);
    /// The same, with something else to do when none is like it.
    Diagnostic& suggestNearestOr(std::string_view wanted, const std::vector<std::string>& names,
                                 const Message& message, MessageValues values);
};

/// `file:line:column: message; suggestion`, with `warning: ` before the message of a warning. The column is
/// left out when it is not known.
std::string toLine(const Diagnostic& diagnostic, Language language = Language::english);

/// Collects what is wrong with the sources. Compiling goes on after an error, so that all errors are found.
///
///     diagnostics.error(place, say::unknownTermName, {word}).suggestNearest(word, termNames);
class Diagnostics {
  public:
    /// The result is good until something else is added.
    Diagnostic& error(const SourcePlace& place, const Message& message, MessageValues values = {});
    Diagnostic& warning(const SourcePlace& place, const Message& message, MessageValues values = {});

    /// Adds what another collection has found.
    void add(Diagnostics more);

    /// Changes each.
    void change(const std::function<void(Diagnostic&)>& change);

    bool hasErrors() const;

    /// Sorted by place, without repetitions: a fault in a page scaffold is found with every page.
    std::vector<Diagnostic> sorted() const;

  private:
    std::vector<Diagnostic> found_;
};

}  // namespace contentc
