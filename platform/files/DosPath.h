#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// An absolute DOS path taken apart, with `.` and `..` resolved.
struct DosPath {
    char letter;                     ///< 'A' to 'Z'
    std::vector<std::string> names;  ///< UTF-8, from the root down
};

/// Takes a DOS path apart (code page 1253; `\` or `/`; empty names count as nothing); nothing when it does
/// not start with a drive letter, a colon and a slash or the end, or holds a NUL.
std::optional<DosPath> parseDosPath(std::string_view text);

/// The path with backslashes, a capital letter for the drive, and without `.`, `..` and empty names; nothing
/// when it cannot be taken apart.
std::optional<std::string> canonicalDosPath(std::string_view text);

/// Whether a canonical path names the folder or something below it, without regard to case. False for a
/// folder that is no absolute path.
bool liesBelow(std::string_view canonicalPath, std::string_view folder);

/// The host path of names below a folder, spelt as they are.
std::string joinNames(const std::string& folder, const std::vector<std::string>& names);

/// The host path of a name in a folder.
std::string joinName(std::string folder, std::string_view name);

/// The host path of the folder that names below a folder lead to, each found as it is or else without regard
/// to case; nothing when there is no such folder.
std::optional<std::string> findFolder(const std::string& folder, const std::vector<std::string>& names);

/// The host path of names below a folder, each found as it is or else without regard to case; of several
/// candidates the first by byte order. A last name that does not exist is taken as it is; a missing folder
/// before it gives nothing.
std::optional<std::string> findNames(const std::string& folder, const std::vector<std::string>& names);

/// The same for names that are known not to exist as they are spelt.
std::optional<std::string> findNamesInAnyCase(const std::string& folder,
                                              const std::vector<std::string>& names);

}  // namespace platform
