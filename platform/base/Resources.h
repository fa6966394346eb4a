#pragma once

#include <span>
#include <string_view>

#include "platform/base/DialogTemplate.h"
#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace platform {

/// One menu item; an empty text is a separator.
struct MenuItem {
    std::string_view text;  ///< code page 1253
    UINT id = 0;
};

/// A menu of the menu bar.
struct Menu {
    std::string_view text;
    std::span<const MenuItem> items;
};

/// A key combination in Qt's portable spelling, such as "Ctrl+Ins", and its command.
struct Accelerator {
    std::string_view keys;
    UINT id = 0;
};

/// A text of the program.
struct StringResource {
    UINT id = 0;
    std::string_view text;  ///< code page 1253
};

/// String resource with the program's name: the title of the frame and of message boxes.
inline constexpr UINT AFX_IDS_APP_TITLE = 57344;

/// A cursor, and the pixel of its picture that points.
struct CursorResource {
    UINT id = 0;
    CPoint hotSpot;
};

/// The program's resources. Bitmaps, cursors and icons are files in the executable: `:/bitmap/ID.png`,
/// `:/cursor/ID.png` and `:/icon/NAME-SIZE.png`.
struct ResourceTable {
    std::span<const Menu> menu;
    std::span<const Accelerator> accelerators;
    std::span<const StringResource> strings;
    std::span<const CursorResource> cursors;
    std::string_view iconName;  ///< NAME of the icon files, and of the program's entry on the desktop
    std::span<const DialogTemplate> dialogs{};
};

/// Sets the program's resources; called before any window exists.
void SetResources(const ResourceTable& table);
/// The resources that SetResources has set.
const ResourceTable& Resources();
/// The text of a string resource, empty when there is none.
std::string_view LoadString(UINT id);

}  // namespace platform
