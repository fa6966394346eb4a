#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// The extension under which a file goes into the data folder: in small letters, and one of those that say
/// the same (`.jpeg` is `.jpg`, `.sdf` is `.mol`).
std::string takenExtension(const std::filesystem::path& path);

/// A file as it was read.
struct SourceFile {
    std::filesystem::path path;
    std::string bytes = {};
    /// 0 for the author's own folder, more for those below it.
    std::size_t layer = 0;
    /// The extension of what was made of the file, whose bytes these are; empty for those of the file itself.
    std::string madeExtension = {};

    /// The file's name without folder, with the extension under which it is taken.
    std::string name() const {
        return stem() + (madeExtension.empty() ? takenExtension(path) : madeExtension);
    }
    /// The file's name without folder and extension.
    std::string stem() const { return path.stem().string(); }
    /// A line of the file, for messages.
    SourcePlace place(int line = 1) const { return {path.generic_string(), line}; }
};

/// The file's bytes. Reported, with nothing returned, when it cannot be read, is no regular file, or changes
/// each time that it is read.
std::optional<SourceFile> readSourceFile(const std::filesystem::path& path, Diagnostics& diagnostics);

}  // namespace contentc
