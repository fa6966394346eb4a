#pragma once

#include <filesystem>

#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/References.h"

namespace contentc {

/// Checks what no file shows alone, and reports it: each section has its start page, the topic of an entry
/// and the page of an element exist where they must, title lists name no entry in two ways.
void checkContent(const Content& content, const std::filesystem::path& root, Diagnostics& diagnostics);

/// Checks that what pages refer to is there, and warns of glossary terms that no page uses.
void checkReferences(const References& references, const Content& content, const OutputFiles& outputs,
                     Diagnostics& diagnostics);

}  // namespace contentc
