#include "src/app/DriveList.h"

#include "platform/files/FileSystem.h"

namespace kalyxo {

using platform::DriveType;
using platform::FileSystem;

namespace {

std::string_view kindName(DriveType type) {
    switch (type) {
        case DriveType::removable:
            return "Removeable Media";
        case DriveType::fixed:
            return "Local Disk";
        case DriveType::remote:
            return "Network drive";
        case DriveType::cdrom:
            return "Compact Disk";
        case DriveType::ramdisk:
            return "RAM Disk";
        case DriveType::unknown:
        case DriveType::noRoot:
            break;
    }
    return {};
}

}  // namespace

std::string DriveEntry(DriveType type, char letter) {
    if (type == DriveType::noRoot) return {};
    const std::string drive{letter, ':'};
    const std::string_view name = kindName(type);
    return name.empty() ? drive : std::string(name) + " (" + drive + ")";
}

std::optional<char> DriveLetter(std::string_view entry) {
    const std::size_t colon = entry.rfind(':');
    if (colon == std::string_view::npos || colon == 0) return std::nullopt;
    return entry[colon - 1];
}

DriveList ListDrives(const FileSystem& files) {
    DriveList drives;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const DriveType type = files.driveType(letter);
        if (type == DriveType::noRoot) continue;
        if (type == DriveType::fixed && drives.selected < 0) {
            drives.selected = static_cast<int>(drives.entries.size());
        }
        drives.entries.push_back(DriveEntry(type, letter));
    }
    if (drives.selected < 0 && !drives.entries.empty()) drives.selected = 0;
    return drives;
}

std::vector<std::string> ListSubfolders(const FileSystem& files, std::string_view folder,
                                        const platform::ProgressStep& step) {
    std::vector<std::string> names;
    const auto entries = files.listFolder(folder, step);
    if (!entries) return names;
    for (const platform::FolderEntry& entry : *entries) {
        if (entry.isFolder && !entry.name.starts_with('.')) names.push_back(entry.name);
    }
    return names;
}

}  // namespace kalyxo
