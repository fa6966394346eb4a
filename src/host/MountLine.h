#pragma once

#include <optional>
#include <string>

namespace kalyxo {

/// The fields of a line of `/proc/mounts` that matter here.
struct MountLine {
    std::string device;
    std::string folder;
    std::string type;  ///< the name of the file system
};

/// The fields without their escapes; nothing when some are missing.
std::optional<MountLine> ReadMountLine(const std::string& line);

}  // namespace kalyxo
