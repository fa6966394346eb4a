#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Result.h"
#include "platform/files/DriveType.h"

namespace platform {

/// The screen.
struct ScreenConfig {
    int width = 1024;
    int height = 768;
    int bitsPerPixel = 32;
    int pixelRatio = 1;  ///< physical pixels per logical pixel, across and down; width and height are logical
    int left = 0;        ///< its left and upper edge among all screens
    int top = 0;

    bool operator==(const ScreenConfig&) const = default;
};

/// A drive in the settings.
struct DriveConfig {
    DriveType type = DriveType::fixed;
    std::filesystem::path folder;  ///< absolute, or relative to the machine folder

    bool operator==(const DriveConfig&) const = default;
};

/// A printer: the size of its page in device pixels, and its vertical resolution in pixels per inch. It
/// writes PDF files into `folder`, or into the machine folder when `folder` is empty. With `desktop`,
/// documents go to the default printer of the user's desktop, with the page size of that printer; PDF files
/// are written only if the desktop has no printer. machine.json has neither `folder` nor `desktop`.
struct PrinterConfig {
    int horzres = 4800;
    int vertres = 6800;
    int logpixelsy = 600;
    std::filesystem::path folder = {};
    bool desktop = false;

    bool operator==(const PrinterConfig&) const = default;
};

/// Host names of the web sites that the program opens, in lower case; empty for none.
struct SitesConfig {
    std::string product;
    std::string maker;

    bool operator==(const SitesConfig&) const = default;
};

/// What machine.json says of a machine; every field of the file may be left out. Texts are code page 1253.
struct MachineConfig {
    ScreenConfig screen;
    std::map<std::string, int, std::less<>>
        metrics;  ///< by name; metrics that are not here have their standard value
    std::map<char, DriveConfig> drives = {{'C', {DriveType::fixed, "c"}}};  ///< by letter, 'A' to 'Z'
    std::string program = "C:\\Program\\program.exe";
    std::string temp = "C:\\Temp\\";
    std::string system = "C:\\Windows\\System";
    std::optional<PrinterConfig> printer;
    SitesConfig sites;
    bool automation = true;  ///< whether programs can host components
    int msPerStep = 0;  ///< how far the virtual clock advances each time it is read, to test slow operations

    bool operator==(const MachineConfig&) const = default;
};

/// Reads the text of a machine.json. Fields that are left out have their value in `defaults`. Drives are
/// added to those of `defaults`, and a drive that is null is removed. Unknown fields are ignored. The message
/// of a failure starts with `name` and says what is wrong: not JSON, a field of a wrong type or out of range,
/// a drive letter that is not A to Z, an unknown drive type.
Result<MachineConfig> parseMachineConfig(std::string_view json, std::string_view name,
                                         const MachineConfig& defaults = {});

/// Reads a machine.json file; see `parseMachineConfig`.
Result<MachineConfig> loadMachineConfig(const std::filesystem::path& path,
                                        const MachineConfig& defaults = {});

/// Writes a machine.json file. False when that fails; the old file is then unchanged.
bool saveMachineConfig(const MachineConfig& config, const std::filesystem::path& path);

}  // namespace platform
