#pragma once

#include "tools/contentc/commands/InstalledProgram.h"
#include "tools/contentc/commands/Options.h"

namespace contentc {

/// Makes a folder with content to begin with, and tells what to do next. Whether it could be made; a folder
/// that holds something is left alone.
bool makeNewFolder(const Options& options, const InstalledProgram& installed);

}  // namespace contentc
