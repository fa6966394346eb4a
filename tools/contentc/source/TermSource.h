#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// A term of the glossary with its text.
struct TermSource {
    SourcePlace place;
    /// The name of its file, made of the term's name: 8 characters of a to z and 0 to 9.
    std::string key;
    std::string term;
    /// Further names and forms by which pages may call it.
    std::vector<std::string> forms;
    /// Line by line.
    std::vector<std::string> definition;
};

/// Reads the terms of a file. Errors are reported, and terms that are too faulty to be used are left out.
/// A line `# Name | form | form` begins a term, and the paragraphs below are its text.
std::vector<TermSource> readTerms(const SourceFile& file, Diagnostics& diagnostics);

/// Makes the keys of the terms. A key depends on the term's name only, unless two names would have the same.
void giveKeys(std::vector<TermSource>& terms);

/// Finds terms by name and form. The terms must stay where they are.
class TermIndex {
  public:
    explicit TermIndex(const std::vector<TermSource>& terms);

    /// The term with this name or form in code page 1253. Null when there is none.
    const TermSource* find(std::string_view name) const;

    /// All names and forms, in UTF-8.
    std::vector<std::string> names() const;

    /// Reports names and forms that two terms have.
    static void check(const std::vector<TermSource>& terms, Diagnostics& diagnostics);

  private:
    std::map<std::string, const TermSource*, std::less<>> byName_;
};

/// The glossary file: the same lines, ended by CR LF.
std::string glossaryFile(const TermSource& term);

}  // namespace contentc
