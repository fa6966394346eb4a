#pragma once

#include <filesystem>

namespace kalyxo {

/// The settings that hold for all users of the host.
inline constexpr const char* kSharedSettingsFile = "/etc/kalyxo.conf";

/// The content folder that a file of settings names in a line `content = FOLDER`; of several the last counts.
/// Empty when there is none, or when it is no absolute path.
std::filesystem::path SharedContentFolder(const std::filesystem::path& settings);

/// Whether a folder of the host has content to show.
bool HoldsContent(const std::filesystem::path& folder);

}  // namespace kalyxo
