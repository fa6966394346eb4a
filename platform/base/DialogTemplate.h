#pragma once

#include <span>
#include <string_view>

#include "platform/base/ControlMessages.h"
#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace platform {

/// The ids of the buttons that every dialog knows, and what DoModal returns for them.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
/// The id of controls that nobody asks for.
inline constexpr int IDC_STATIC = -1;

enum class DialogControlKind {
    pushButton,
    defaultPushButton,
    staticText,
    bitmap,
    edit,
    checkBox,
    listBox,
    comboBox,
    listView,
    treeView,
};

/// A control of a template.
struct DialogControl {
    DialogControlKind kind = DialogControlKind::staticText;
    int id = IDC_STATIC;
    CRect rect{};  ///< dialog units; a bitmap takes its own size instead
    /// Code page 1253; for kinds that show no text, what screen readers call the control.
    std::string_view text{};
    UINT bitmap = 0;  ///< resource id, for bitmaps only
    DWORD style = WS_VISIBLE | WS_TABSTOP;
};

/// What stands around a dialog's client area.
enum class DialogFrame {
    window,  ///< the window system's frame with its caption
    tool,    ///< a thin frame and a small caption with a close box, as of a box of tools
    plain,   ///< two pixels and no caption; before all windows, without a focus
};

/// A dialog as it is drawn up: its controls in the order of the tabulator.
struct DialogTemplate {
    UINT id = 0;
    std::string_view caption;  ///< code page 1253
    CSize size;                ///< client area, dialog units
    std::span<const DialogControl> controls;
    DialogFrame frame = DialogFrame::window;
};

/// Pixels of one dialog unit times 4 across and times 8 down: the letters of "MS Sans Serif" of 8 points.
inline constexpr CSize dialogBaseUnits{6, 13};

/// a × b ÷ c for a positive c, rounded to the nearest, halves away from zero.
constexpr int MulDiv(int a, int b, int c) {
    const auto product = static_cast<long long>(a) * b;
    return static_cast<int>((product < 0 ? product - c / 2 : product + c / 2) / c);
}

/// A size in dialog units as pixels.
constexpr CSize dialogPixels(CSize units) {
    return {MulDiv(units.cx, dialogBaseUnits.cx, 4), MulDiv(units.cy, dialogBaseUnits.cy, 8)};
}

/// A rectangle in dialog units as pixels: corner and size each for itself.
constexpr CRect dialogPixels(const CRect& units) {
    const CSize corner = dialogPixels(CSize{units.left, units.top});
    const CSize size = dialogPixels(CSize{units.Width(), units.Height()});
    return CRect::at(corner.cx, corner.cy, size.cx, size.cy);
}

}  // namespace platform
