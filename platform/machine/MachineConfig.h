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
    int pixelRatio = 1;  ///< pixels, across and down, to one of those that width and height count

    bool operator==(const ScreenConfig&) const = default;
};

/// A drive as the settings name it.
struct DriveConfig {
    DriveType type = DriveType::fixed;
    std::filesystem::path folder;  ///< absolute, or relative to the machine folder

    bool operator==(const DriveConfig&) const = default;
};

/// A printer: its page in device pixels and its vertical resolution in pixels per inch. It prints PDF files,
/// into the machine folder if no other is given. With `desktop` it does so only where the user's desktop has
/// no printer; else its default printer is meant, whose page is its own. The latter two are not in
/// machine.json.
struct PrinterConfig {
    int horzres = 4800;
    int vertres = 6800;
    int logpixelsy = 600;
    std::filesystem::path folder = {};
    bool desktop = false;

    bool operator==(const PrinterConfig&) const = default;
};

/// Hosts of the web sites that the program opens, in small letters; empty for none.
struct SitesConfig {
    std::string product = "kalyxo.example";
    std::string maker = "orvane.example";

    bool operator==(const SitesConfig&) const = default;
};

/// What machine.json tells of a machine; every field of the file may be left out. Texts are code page 1253.
struct MachineConfig {
    ScreenConfig screen;
    std::map<std::string, int, std::less<>>
        metrics;  ///< the metrics given, by name; others have their standard value
    std::map<char, DriveConfig> drives = {{'C', {DriveType::fixed, "c"}}};  ///< by letter, 'A' to 'Z'
    std::string program = "C:\\Kalyxo\\kalyxo.exe";
    std::string temp = "C:\\Temp\\";
    std::string system = "C:\\Windows\\System";
    std::optional<PrinterConfig> printer;
    SitesConfig sites;
    bool automation = true;  ///< whether programs can host components
    int msPerStep = 0;       ///< what each look at the clock takes with virtual time, to try out what is slow

    bool operator==(const MachineConfig&) const = default;
};

/// Reads machine.json text. Drives add to the drive C: that there is by default; a drive that is null is
/// taken away. Unknown fields are passed over. A failure's message starts with `name` and says what is wrong:
/// not JSON, a field of a wrong type or out of range, a drive letter that is not A to Z, an unknown drive
/// type.
Result<MachineConfig> parseMachineConfig(std::string_view json, std::string_view name);

/// Reads a machine.json file.
Result<MachineConfig> loadMachineConfig(const std::filesystem::path& path);

/// Writes a machine.json file all at once; false when that fails, with the old file as it was.
bool saveMachineConfig(const MachineConfig& config, const std::filesystem::path& path);

}  // namespace platform
