#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/DriveType.h"

namespace kalyxo {

/// A medium that the host shows in one of its folders.
struct MountedMedium {
    std::filesystem::path folder;
    platform::DriveType type = platform::DriveType::fixed;

    bool operator==(const MountedMedium&) const = default;
};

/// What `/sys/block/NAME/removable` holds, by the disk's NAME.
using RemovableTexts = std::map<std::string, std::string, std::less<>>;

/// The media among the file systems of a text in the form of `/proc/mounts`, sorted by folder: compact discs,
/// disks that can be taken out, network folders, and what lies where users mount (`/media`, `/run/media`,
/// `/mnt`), memory included. What belongs to the host's own system is left out. Of several file systems in
/// one folder the last counts, as it hides the others.
std::vector<MountedMedium> ReadMountedMedia(std::string_view mounts, const RemovableTexts& removable);

/// The media of the running host.
std::vector<MountedMedium> PresentMedia();

}  // namespace kalyxo
