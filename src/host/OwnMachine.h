#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/base/Result.h"
#include "platform/files/ProgressStep.h"
#include "platform/machine/Machine.h"
#include "src/host/InstalledFiles.h"
#include "src/host/MountedMedia.h"

namespace kalyxo {

/// The screen and the printer that the program finds at this start.
struct PresentScreen {
    platform::ScreenConfig screen;
    std::map<std::string, int, std::less<>> metrics;  ///< those that follow from the screen, by name
    platform::PrinterConfig printer = {};
};

/// The user's machine folder: `kalyxo` in $XDG_DATA_HOME or, without it, in ~/.local/share. Empty when
/// neither is known.
std::filesystem::path OwnMachineFolder();

/// Opens the user's machine. At the first start it is made from what is installed, with the host's whole file
/// system as drive Z:; at later starts what is missing of it is made again. At every start the screen's
/// measures are those of the present screen, component modules that differ from the installed ones are
/// replaced, the compact disc is the content that is set for all users or, where it is missing or its folder
/// is, the installed content, and the media are drives (see `AddMediaDrives`). Several programs may do so at
/// once: one makes the machine, the others wait for it. The failure's message is for the user, in code page
/// 1253; a file that is damaged is left as it is. `step` is told of the modules, which may lie on a slow
/// medium; once it cancels, the value is null, and the next start goes on where this one stopped.
platform::Result<std::unique_ptr<platform::Machine>> OpenOwnMachine(const std::filesystem::path& folder,
                                                                    const InstalledFiles& installed,
                                                                    const PresentScreen& present,
                                                                    const std::vector<MountedMedium>& media,
                                                                    const platform::ProgressStep& step = {});

/// Makes a folder of the host a drive until the program ends; returns its root, such as "Y:\\". Takes a
/// letter that is free, as far from those of media as there is one.
std::string AddDrive(platform::FileSystem& files, const std::filesystem::path& folder);

}  // namespace kalyxo
