#include "src/app/DriveList.h"

#include "platform/base/Resources.h"
#include "platform/files/FileSystem.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using platform::DriveType;
using platform::FileSystem;

namespace {

/// The text that names the kind, 0 when there is none.
platform::UINT kindName(DriveType type) {
    switch (type) {
        case DriveType::removable:
            return IDS_REMOVABLE_DRIVE;
        case DriveType::fixed:
            return IDS_FIXED_DRIVE;
        case DriveType::remote:
            return IDS_NETWORK_DRIVE;
        case DriveType::cdrom:
            return IDS_CD_DRIVE;
        case DriveType::ramdisk:
            return IDS_RAM_DRIVE;
        case DriveType::unknown:
        case DriveType::noRoot:
            break;
    }
    return 0;
}

}  // namespace

std::string DriveEntry(DriveType type, char letter) {
    if (type == DriveType::noRoot) return {};
    const std::string drive{letter, ':'};
    const std::string_view name = platform::LoadString(kindName(type));
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
