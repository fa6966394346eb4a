#pragma once

namespace platform {

/// What kind of drive stands behind a letter, by the platform's numbers.
enum class DriveType {
    unknown = 0,
    noRoot = 1,  ///< there is no such drive
    removable = 2,
    fixed = 3,
    remote = 4,
    cdrom = 5,
    ramdisk = 6,
};

}  // namespace platform
