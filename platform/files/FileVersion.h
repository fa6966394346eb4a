#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace platform {

/// The version text that a component module carries, such as "1.0.40.0", or nothing when the file is missing,
/// is no 64-bit little-endian ELF object, is damaged, or carries none. The text stands, ended by a NUL, in a
/// section named `.component.version`.
std::optional<std::string> fileVersionText(const std::filesystem::path& path);

}  // namespace platform
