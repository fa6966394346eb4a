#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/base/Result.h"
#include "platform/files/ProgressStep.h"
#include "platform/machine/MachineConfig.h"

namespace platform {

/// A component module and the class it serves.
struct NewMachineComponent {
    std::string file;     ///< file name of the module
    std::string classId;  ///< class identifier without braces
};

/// A file to be written on the new machine.
struct NewMachineFile {
    std::string path;     ///< DOS path
    std::string content;  ///< byte for byte
};

/// What the program file of a machine holds.
inline constexpr std::string_view programPlaceholder =
    "This file stands for the program on this machine.\r\n";

/// What a new machine gets. Texts are code page 1253, paths DOS paths unless said otherwise.
struct NewMachineOptions {
    MachineConfig config;               ///< written to machine.json with the compact disc added
    std::filesystem::path discFolder;   ///< host folder that is the compact disc D:; none when empty
    std::filesystem::path modulesFrom;  ///< host folder whose modules are copied; none when empty
    std::string modulesTo;              ///< folder on the machine that receives them
    std::string settingsKey;  ///< key under HKEY_LOCAL_MACHINE, made even without values; none when empty
    std::vector<std::pair<std::string, std::variant<std::string, std::uint32_t>>> settings;  ///< its values
    std::vector<NewMachineComponent> components;  ///< registered in `modulesTo`
    std::vector<NewMachineFile> files;            ///< written last, with the folders above them
};

/// The modules in a folder of the host: components (.ocx), and libraries that a component loads (.so).
/// Nothing when the folder cannot be read.
std::optional<std::vector<std::filesystem::path>> modulesIn(const std::filesystem::path& folder);

/// Makes a machine folder: machine.json, registry.reg, drive C: with the program file (a placeholder at the
/// program's path), the temporary and system folders, the component modules and the files asked for. In a
/// folder that exists already the files named here are replaced, and all others stay. `step` is told how many
/// modules are copied; if it cancels, no registry.reg is written. The failure names what could not be made.
Result<void> makeMachine(const std::filesystem::path& folder, const NewMachineOptions& options,
                         const ProgressStep& step = {});

}  // namespace platform
