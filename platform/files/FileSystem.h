#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/DriveType.h"
#include "platform/files/FileHandle.h"
#include "platform/files/FolderNames.h"
#include "platform/files/ProgressStep.h"

namespace platform {

/// A drive letter and the host folder that is its root.
struct Drive {
    char letter = 'C';  ///< 'A' to 'Z'
    DriveType type = DriveType::fixed;
    std::filesystem::path folder;
};

/// One entry of a folder.
struct FolderEntry {
    std::string name;  ///< code page 1253
    bool isFolder = false;
};

/// Files by DOS path: code page 1253, absolute (`D:\images\x.gif`, also with `/`), letters in any case, as
/// content made for that platform mixes them. `.` and `..` are resolved within the path and never leave the
/// drive. Each name is looked up as it is first and then without regard to case. Not for
/// several threads at once.
class FileSystem {
  public:
    FileSystem() = default;
    explicit FileSystem(std::vector<Drive> drives) { setDrives(std::move(drives)); }

    /// Replaces all drives. Letters are taken as upper case; the first of two drives with one letter counts.
    void setDrives(std::vector<Drive> drives);
    const std::vector<Drive>& drives() const { return drives_; }

    /// Names the folder (DOS path) whose files come from anywhere. Those in it and below it open for reading
    /// only if they really lie there; symbolic links must not lead out of it. Before, there is none.
    void setContentFolder(std::string_view dosPath);

    /// Has a DOS folder, named without a backslash at its end, be a folder of the host from now on, whatever
    /// its drive holds there.
    void mount(std::string_view dosFolder, const std::filesystem::path& folder);

    /// The type of a drive by its letter, in either case; `noRoot` when there is none.
    DriveType driveType(char letter) const;

    /// The host path of a DOS path. A last name that does not exist gives the path at which it would be
    /// created; a missing folder before it, a missing drive, a path that is not absolute or holds a NUL gives
    /// nothing.
    std::optional<std::filesystem::path> nativePath(std::string_view dosPath) const;

    /// The DOS path of a host path below a drive's folder (of several, the one with the longest folder), or
    /// nothing when there is no such drive or a name is outside the code page. Need not exist.
    std::optional<std::string> dosPath(const std::filesystem::path& native) const;

    /// Opens an existing regular file for reading; a closed handle when there is none. Never waits for a pipe
    /// or device of that name.
    FileHandle openForReading(std::string_view dosPath) const;

    /// Opens a file for writing, empty: an existing one is emptied, a missing one created. A closed handle on
    /// failure; never waits for the other end of a pipe.
    FileHandle openForWriting(std::string_view dosPath) const;

    /// Whether there is a file or folder of that name.
    bool exists(std::string_view dosPath) const;
    /// Whether there is certainly no file or folder of that name: not when the host cannot tell.
    bool isMissing(std::string_view dosPath) const;
    /// Whether there is a folder of that name.
    bool isFolder(std::string_view dosPath) const;

    /// All of a file. Nothing when it has more than `maxBytes`, which is found out before it is read, when it
    /// cannot be read, or when `step` has cancelled that.
    std::optional<std::string> readAll(std::string_view dosPath, std::size_t maxBytes,
                                       const ProgressStep& step = {}) const;

    /// The first `maxBytes` bytes of a file, all of a shorter one; nothing when it cannot be read.
    std::optional<std::string> readStart(std::string_view dosPath, std::size_t maxBytes) const;

    /// Copies a file over `to`, which may exist; a failure leaves no half of it, and a former `to` as it was.
    bool copyFile(std::string_view from, std::string_view to) const;

    /// Renames or moves a file or folder; `to` must not exist.
    bool moveFile(std::string_view from, std::string_view to) const;

    /// Deletes a file; false for a folder or when there is none.
    bool deleteFile(std::string_view dosPath) const;

    /// Creates a folder in an existing one; false when it exists already.
    bool createFolder(std::string_view dosPath) const;

    /// Creates a folder and those missing above it; true also when it exists already.
    bool createFolders(std::string_view dosPath) const;

    /// Removes an empty folder.
    bool removeFolder(std::string_view dosPath) const;

    /// The entries of a folder, sorted without regard to case, `.` and `..` left out; nothing when it cannot
    /// be read, or `step` has cancelled that. A name outside the code page cannot be addressed and is left
    /// out too.
    std::optional<std::vector<FolderEntry>> listFolder(std::string_view dosPath,
                                                       const ProgressStep& step = {}) const;

  private:
    /// A DOS path as the host folder of its drive, or of what is mounted there, and the host names below it.
    struct Place {
        std::string folder;
        std::vector<std::string> names;
    };
    struct Mount {
        char letter;
        std::vector<std::string> names;
        std::string root;  ///< the DOS path, with a backslash at its end
        std::filesystem::path folder;
    };

    const Drive* findDrive(char letter) const;
    const Mount* findMount(char letter, const std::vector<std::string>& names) const;
    std::optional<Place> locate(std::string_view dosPath) const;
    FileHandle openNative(const std::string& path) const;
    FileHandle createIn(const std::string& folder, const std::string& name) const;

    std::vector<Drive> drives_;
    std::vector<Mount> mounts_;
    std::optional<std::string> contentFolder_;  ///< host path
    mutable FolderNames written_;               ///< those of the folder last written to
};

}  // namespace platform
