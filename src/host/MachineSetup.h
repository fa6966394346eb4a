#pragma once

#include <filesystem>

#include "platform/machine/NewMachine.h"

namespace kalyxo {

/// How a new machine differs from one on which the program was installed the usual way.
struct MachineSetup {
    bool outside = false;  ///< the settings do not name the installed folder
    bool bare = false;     ///< no component is registered, and no cset.ini tells where the content is
};

/// The settings of a machine that machine.json leaves out: the program's path and its web sites.
platform::MachineConfig DefaultMachineConfig();

/// What a new machine of the product gets: the program in C:\Kalyxo with the components in its ActiveX
/// folder, the settings key, the registered components, the content as the compact disc D: and a cset.ini
/// that names it and the bookmark file. Both folders are the host's.
platform::NewMachineOptions NewMachineOptions(const std::filesystem::path& content,
                                              const std::filesystem::path& modules, MachineSetup setup);

}  // namespace kalyxo
