#pragma once

#include <filesystem>

#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/References.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Reports what is wrong between files: a section without its start page, an entry whose topic does not
/// exist, and an entry of a title list with two titles.
void checkContent(const Content& content, const std::filesystem::path& root, Diagnostics& diagnostics);

/// Reports references of pages to what does not exist.
void checkReferences(const References& references, const Content& content, const OutputFiles& outputs,
                     Diagnostics& diagnostics);

/// Warns of terms, pictures, molecules and videos of the author's own that no page uses.
void checkUnused(const SourceTree& tree, const Content& content, const References& references,
                 Diagnostics& diagnostics);

/// Warns of classes in the HTML of pages for which there is no style. To be called before bodies are
/// compiled.
void checkClasses(const SourceTree& tree, const Content& content, Diagnostics& diagnostics);

}  // namespace contentc
