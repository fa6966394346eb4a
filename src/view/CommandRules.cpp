#include "src/view/CommandRules.h"

#include "src/view/EditCommands.h"

namespace kalyxo {

bool CommandRules::CutAndPaste() const { return shows(ContentMode::Page) && FocusIsInSelectEdit(); }

bool CommandRules::BookmarkAdd() const {
    if (shows(ContentMode::Page)) return m_navigator.Address().pageId > 0;
    return !shows(ContentMode::MainMenu);
}

bool CommandRules::Section(std::int16_t code) const {
    return shows(ContentMode::Page) && m_navigator.Address().sectionCode == code;
}

}  // namespace kalyxo
