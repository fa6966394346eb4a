#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/base/Result.h"
#include "platform/registry/Registry.h"

namespace platform {

/// Reads registry text of the form "Windows Registry Editor Version 5.00", UTF-8 (with or without a byte
/// order mark) or UTF-16LE with one. A failure's message begins with `name` and gives the line.
/// Value types other than text and 32-bit numbers are kept as they are; comments are not kept.
Result<Registry> parseRegText(std::string_view bytes, std::string_view name);

/// Reads a registry file; for a missing or damaged one the failure names the file, and the line if there is
/// one.
Result<Registry> loadRegFile(const std::filesystem::path& path);

/// The registry as such text: UTF-8, lines ended by CR LF, keys sorted.
std::string formatRegText(const Registry& registry);

/// Writes the registry file all at once: after a failure or a crash the old file stands or the new one.
bool saveRegFile(const Registry& registry, const std::filesystem::path& path);

}  // namespace platform
