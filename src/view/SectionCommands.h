#pragma once

#include <array>
#include <cstdint>

#include "platform/base/Messages.h"

namespace kalyxo {

/// Slots of the section bar beside the seven sections.
inline constexpr int kPeriodicTableSlot = 7;
inline constexpr int kDataAnalyserSlot = 8;
inline constexpr int kMainMenuSlot = 9;
inline constexpr int kToolbarSlot = 10;
inline constexpr int kFillerSlot = 11;

/// A section's menu command; sections stand in the order of the bar, so the index is the slot.
struct SectionCommand {
    std::int16_t code;
    platform::UINT command;
};

/// The seven sections by bar slot.
const std::array<SectionCommand, 7>& SectionCommands();

/// The code of the section that a command opens, which must be one of the seven.
std::int16_t SectionOfCommand(platform::UINT command);

/// Bar slot of a section code, −1 for any other code.
int SlotOfSection(std::int16_t code);

}  // namespace kalyxo
