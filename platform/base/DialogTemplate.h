#pragma once

#include <span>
#include <string_view>

#include "platform/base/ControlMessages.h"
#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace platform {

/// Ids of the buttons that every dialog knows; DoModal returns them.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
/// The id of controls that nobody refers to.
inline constexpr int IDC_STATIC = -1;

/// The kinds of controls that a template can place.
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
    CRect rect{};  ///< dialog units; the size of a bitmap control is that of its picture
    /// Code page 1253. If the kind of control shows no text, this is its name for screen readers.
    std::string_view text{};
    UINT bitmap = 0;  ///< resource id, for bitmaps only
    DWORD style = WS_VISIBLE | WS_TABSTOP;
};

/// The frame around a dialog's client area.
enum class DialogFrame {
    window,  ///< the window system's frame with its caption
    tool,    ///< a thin frame and a small caption with a close box, as tool boxes have
    plain,   ///< two pixels and no caption; always on top, never with the focus
};

/// The description of a dialog. The controls are in the order of the tabulator.
struct DialogTemplate {
    UINT id = 0;
    std::string_view caption;  ///< code page 1253
    CSize size;                ///< client area, dialog units
    std::span<const DialogControl> controls;
    DialogFrame frame = DialogFrame::window;
    /// The control that grows when the user enlarges the dialog; 0 when the dialog keeps its size. What lies
    /// right of its left edge or below its middle moves with it, and what reaches below its middle grows
    /// downwards.
    int growing = 0;
};

/// The size of 4 horizontal and 8 vertical dialog units in pixels: that of an average letter of "MS Sans
/// Serif", 8 points.
inline constexpr CSize dialogBaseUnits{6, 13};

/// a × b ÷ c for a positive c, rounded to the nearest integer, halves away from zero.
constexpr int MulDiv(int a, int b, int c) {
    const auto product = static_cast<long long>(a) * b;
    return static_cast<int>((product < 0 ? product - c / 2 : product + c / 2) / c);
}

/// A size in dialog units as pixels.
constexpr CSize dialogPixels(CSize units) {
    return {MulDiv(units.cx, dialogBaseUnits.cx, 4), MulDiv(units.cy, dialogBaseUnits.cy, 8)};
}

/// A rectangle in dialog units as pixels. Corner and size are converted separately.
constexpr CRect dialogPixels(const CRect& units) {
    const CSize corner = dialogPixels(CSize{units.left, units.top});
    const CSize size = dialogPixels(CSize{units.Width(), units.Height()});
    return CRect::at(corner.cx, corner.cy, size.cx, size.cy);
}

}  // namespace platform
