#include "src/view/SectionCommands.h"

#include <algorithm>

#include "src/resources/CommandIds.h"

namespace kalyxo {

namespace {

constexpr std::array<SectionCommand, 7> kSections = {{
    {1, ID_SECTION_REACT},
    {2, ID_SECTION_STRUCT},
    {6, ID_SECTION_ELEMCOMP},
    {4, ID_SECTION_USES},
    {3, ID_SECTION_SOURCE},
    {5, ID_SECTION_HISTORY},
    {7, ID_SECTION_CONCEPT},
}};

}  // namespace

const std::array<SectionCommand, 7>& SectionCommands() { return kSections; }

std::int16_t SectionOfCommand(platform::UINT command) {
    return std::ranges::find(kSections, command, &SectionCommand::command)->code;
}

int SlotOfSection(std::int16_t code) {
    const auto at = std::ranges::find(kSections, code, &SectionCommand::code);
    return at == kSections.end() ? -1 : static_cast<int>(at - kSections.begin());
}

}  // namespace kalyxo
