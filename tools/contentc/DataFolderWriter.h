#pragma once

#include <filesystem>

#include "platform/base/Result.h"
#include "tools/contentc/source/OutputFiles.h"

namespace contentc {

/// Writes the files as the data folder `folder`, creating it or replacing a former one. All is written into a
/// temporary folder beside it first, so that after a failure a former folder stands as it was and nothing new
/// does. A folder that holds anything but a data folder is not replaced.
/// The failure names the file or folder.
platform::Result<void> writeDataFolder(const OutputFiles& files, const std::filesystem::path& folder);

}  // namespace contentc
