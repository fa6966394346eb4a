#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// Whether a text can name a glossary file: exactly 8 characters a to z, 0 to 9.
bool isGlossaryKey(std::string_view text);

/// A term of the glossary with its text.
struct TermSource {
    SourcePlace place;
    /// The name of its file; made of the term's name unless the source's own name is the key.
    std::string key;
    std::string term;
    /// Further names and forms by which pages may call it.
    std::vector<std::string> forms;
    /// Line by line.
    std::vector<std::string> definition;
};

/// Reads the terms of a file. Errors are reported, and terms that are too faulty to be used are left out.
///
/// In Markdown (`*.md`), a line `# Name | form | form` begins a term, and the paragraphs below are its text.
/// In the older form (`KEY.term`) the first line is the name and the others are the text.
std::vector<TermSource> readTerms(const SourceFile& file, Diagnostics& diagnostics);

/// Makes keys for the terms that have none. A key depends on the term's name only, unless two names would
/// have the same.
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
