#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/DriveType.h"
#include "platform/files/ProgressStep.h"

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// What the drive list calls a drive; empty for a letter behind which there is none.
std::string DriveEntry(platform::DriveType type, char letter);

/// The letter before the last colon of a drive list's entry, or nothing.
std::optional<char> DriveLetter(std::string_view entry);

/// A drive list: the entries from A to Z, and the one selected at first: the first fixed disk, else the first
/// of all, −1 when there is none.
struct DriveList {
    std::vector<std::string> entries;
    int selected = -1;
};
DriveList ListDrives(const platform::FileSystem& files);

/// The names of the folders in a folder (DOS path), hidden ones too, without those that begin with a full
/// stop; none when it cannot be read or `step` has cancelled that.
std::vector<std::string> ListSubfolders(const platform::FileSystem& files, std::string_view folder,
                                        const platform::ProgressStep& step = {});

}  // namespace kalyxo
