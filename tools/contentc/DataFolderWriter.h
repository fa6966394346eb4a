#pragma once

#include <filesystem>

#include "tools/contentc/source/OutputFiles.h"

namespace contentc {

/// Writes the files as the data folder `folder`, creating it or replacing a former one. All is written into a
/// temporary folder beside it first, so that after a failure a former folder stands as it was and nothing new
/// does. A folder that holds anything but a data folder is not replaced.
/// Whether it was written; what failed is reported.
bool writeDataFolder(const OutputFiles& files, const std::filesystem::path& folder, Diagnostics& diagnostics);

}  // namespace contentc
