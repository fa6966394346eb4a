#pragma once

#include "platform/base/Result.h"
#include "platform/machine/Machine.h"
#include "platform/machine/NewMachine.h"

namespace kalyxo {

/// Makes what is missing of what a new machine has: the folders of its drives, the program file, the folders
/// and files, the settings and registrations. What is there stays, but for texts whose lines end with LF
/// alone, which get the line ends that their readers need. Fails with the host path (UTF-8) of what cannot be
/// made. True when the registry has been changed; it is not written here.
platform::Result<bool> RepairMachine(platform::Machine& machine, const platform::NewMachineOptions& options);

}  // namespace kalyxo
