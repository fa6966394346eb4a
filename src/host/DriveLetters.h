#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/machine/MachineConfig.h"
#include "platform/registry/Registry.h"
#include "src/host/MountedMedia.h"

namespace kalyxo {

/// The folder of the medium that had a letter, by letter. Characters that are not plain ASCII are written as
/// a backslash with three octal digits.
using LetterMemory = std::map<char, std::string>;

/// The letters that the registry remembers.
LetterMemory RememberedLetters(platform::Registry& registry);

/// Writes them into the registry.
void RememberLetters(platform::Registry& registry, const LetterMemory& letters);

/// Makes the media drives of the machine, as long as there are letters free from D: on; a folder that is a
/// drive already gets no second one. A medium keeps the letter that is remembered for it while others come
/// and go; a new medium gets the letter of one that is not there only when no other letter is left. Returns
/// what is to be remembered from now on.
LetterMemory AddMediaDrives(platform::MachineConfig& config, const LetterMemory& remembered,
                            const std::vector<MountedMedium>& media);

}  // namespace kalyxo
