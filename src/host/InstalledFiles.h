#pragma once

#include <filesystem>
#include <optional>

namespace kalyxo {

/// Where the parts of the product lie that a machine is made from; folders of the host.
struct InstalledFiles {
    std::filesystem::path modules;  ///< the component modules
    std::filesystem::path content;  ///< the bundled content
    /// The content that is set for all users in its place; empty when none is.
    std::filesystem::path shared = {};
};

/// The parts that belong to the programs in `programs`: in a build tree the modules in `../ActiveX` and the
/// content in `../content/data`, when installed below a prefix `../lib/kalyxo/ActiveX` and
/// `../share/kalyxo/content`. A folder that is in neither place is empty.
InstalledFiles FindInstalledFiles(const std::filesystem::path& programs);

/// The folder of the running program, empty when the system does not tell.
std::filesystem::path RunningProgramsFolder();

}  // namespace kalyxo
