#include "src/host/MountedMedia.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <system_error>

#include "platform/files/FileHandle.h"
#include "src/host/MountLine.h"

namespace kalyxo {

namespace fs = std::filesystem;

using platform::DriveType;

namespace {

constexpr std::array<std::string_view, 2> kDiscTypes = {"iso9660", "udf"};
constexpr std::array<std::string_view, 17> kRemoteTypes = {"9p",
                                                           "afs",
                                                           "ceph",
                                                           "cifs",
                                                           "davfs",
                                                           "fuse.ceph",
                                                           "fuse.curlftpfs",
                                                           "fuse.davfs",
                                                           "fuse.glusterfs",
                                                           "fuse.rclone",
                                                           "fuse.s3fs",
                                                           "fuse.sshfs",
                                                           "ncpfs",
                                                           "nfs",
                                                           "nfs4",
                                                           "smb3",
                                                           "virtiofs"};
constexpr std::array<std::string_view, 3> kUserPlaces = {"/media", "/mnt", "/run/media"};
constexpr std::array<std::string_view, 8> kSystemPlaces = {"/boot", "/dev", "/etc", "/proc",
                                                           "/run",  "/sys", "/usr", "/var"};

template <std::size_t N>
bool isOneOf(std::string_view name, const std::array<std::string_view, N>& names) {
    return std::ranges::find(names, name) != names.end();
}

template <std::size_t N>
bool liesBelowOneOf(std::string_view folder, const std::array<std::string_view, N>& places) {
    return std::ranges::any_of(places, [folder](std::string_view place) {
        return folder.starts_with(place) && (folder.size() == place.size() || folder[place.size()] == '/');
    });
}

/// Whether `part` is the disk's own device or one of its partitions: `sdb`, `sdb1`, `mmcblk0p1`.
bool isPartOf(std::string_view part, std::string_view disk) {
    if (!part.starts_with(disk)) return false;
    std::string_view number = part.substr(disk.size());
    if (number.starts_with('p')) number.remove_prefix(1);
    return number.find_first_not_of("0123456789") == number.npos;
}

std::optional<DriveType> diskType(std::string_view device, bool inUserPlace, const RemovableTexts& texts) {
    const std::string_view part = device.substr(device.rfind('/') + 1);
    if (isPartOf(part, "sr")) return DriveType::cdrom;
    // The host says that the reader of a memory card is fixed, although the card can be taken out.
    const bool isCard = part.starts_with("mmcblk") && inUserPlace;
    const bool goesOut = std::ranges::any_of(texts, [part](const auto& disk) {
        return disk.second.starts_with('1') && isPartOf(part, disk.first);
    });
    if (isCard || goesOut) return DriveType::removable;
    return inUserPlace ? std::optional(DriveType::fixed) : std::nullopt;
}

/// Nothing for a file system of the host itself: its root, and what lies in its system folders. A place where
/// users mount is none of the host's own, even inside a system folder (`/run/media`).
std::optional<DriveType> typeOf(const MountLine& line, const RemovableTexts& removable) {
    const bool inUserPlace = liesBelowOneOf(line.folder, kUserPlaces);
    if (line.folder == "/" || (liesBelowOneOf(line.folder, kSystemPlaces) && !inUserPlace)) return {};
    if (isOneOf(line.type, kDiscTypes)) return DriveType::cdrom;
    if (isOneOf(line.type, kRemoteTypes)) return DriveType::remote;
    if (line.type == "tmpfs") return inUserPlace ? std::optional(DriveType::ramdisk) : std::nullopt;
    return line.device.starts_with("/dev/") ? diskType(line.device, inUserPlace, removable) : std::nullopt;
}

/// The host's texts are far shorter.
constexpr std::size_t kMaxHostText = std::size_t{16} << 20;

std::string textOf(const fs::path& file) {
    platform::FileHandle handle = platform::FileHandle::openForReading(file);
    return handle ? handle.readAll(kMaxHostText).value_or("") : std::string();
}

RemovableTexts presentRemovableTexts() {
    RemovableTexts texts;
    std::error_code error;
    for (fs::directory_iterator at("/sys/block", error), end; !error && at != end; at.increment(error)) {
        texts[at->path().filename().string()] = textOf(at->path() / "removable");
    }
    return texts;
}

}  // namespace

std::vector<MountedMedium> ReadMountedMedia(std::string_view mounts, const RemovableTexts& removable) {
    std::map<std::string, std::optional<DriveType>> types;
    std::istringstream in{std::string(mounts)};
    for (std::string text; std::getline(in, text);) {
        if (const auto line = ReadMountLine(text)) types[line->folder] = typeOf(*line, removable);
    }
    std::vector<MountedMedium> media;
    for (const auto& [folder, type] : types) {
        if (type) media.push_back({folder, *type});
    }
    return media;
}

std::vector<MountedMedium> PresentMedia() {
    return ReadMountedMedia(textOf("/proc/mounts"), presentRemovableTexts());
}

}  // namespace kalyxo
