#pragma once

#include <filesystem>

#include "tools/contentc/source/Layers.h"

namespace contentc {

/// What the installed program has for those who write content; empty paths for what is not there.
struct InstalledProgram {
    /// The program that shows content.
    std::filesystem::path program;
    InstalledContent content;
    /// The files of a new folder: `own` for one that stands alone, `over` for one laid over another.
    std::filesystem::path starter;
};

/// Looks beside the running program: in a build tree below `../content`, when installed below
/// `../share/kalyxo`.
InstalledProgram findInstalledProgram();

}  // namespace contentc
