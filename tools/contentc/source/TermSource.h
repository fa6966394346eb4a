#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// Whether a text can name a glossary file: exactly 8 characters a to z, 0 to 9.
bool isGlossaryKey(std::string_view text);

/// A glossary text: the term on its first line, the definition on the others.
struct TermSource {
    SourcePlace place;
    std::string key;
    std::string term;
    std::vector<std::string> definition;
};

/// Reads a term. Errors are reported. Nothing when the term is too faulty to be used.
std::optional<TermSource> readTerm(const SourceFile& file, Diagnostics& diagnostics);

/// The glossary file: the same lines, ended by CR LF.
std::string glossaryFile(const TermSource& term);

}  // namespace contentc
