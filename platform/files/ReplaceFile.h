#pragma once

#include <filesystem>
#include <string_view>

#include "platform/files/FileSystem.h"

namespace platform {

/// Gives a file the new content all at once: a temporary file beside it is written, forced to the medium and
/// renamed over it, so that a crash or a full disk leaves the old file or the new one, never a part. Creates
/// a missing file. Returns false, with the old file as it was, when any of that fails or the file is
/// write-protected.
bool replaceFile(const std::filesystem::path& path, std::string_view content);

/// The same by DOS path.
bool replaceFile(const FileSystem& files, std::string_view dosPath, std::string_view content);

/// Copies a regular file over another, all at once too, but without waiting for the medium. Returns false,
/// with a former `to` as it was, when that fails.
bool copyFileOver(const std::filesystem::path& from, const std::filesystem::path& to);

/// The same for what is left to read of an open file.
bool copyFileOver(FileHandle& from, const std::filesystem::path& to);

/// Deletes the temporary files that stay in a folder when a process is ended by force in one of the functions
/// above: those that were to replace a file whose name begins with `start`. No other process may replace such
/// a file meanwhile.
void deleteHalves(const std::filesystem::path& folder, std::string_view start = {});

}  // namespace platform
