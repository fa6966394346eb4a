#pragma once

#include <string>

#include "platform/base/Geometry.h"

namespace platform {

class CWnd;

/// Something that a window draws itself and the user can push like a button: what screen readers are told of
/// it.
struct DrawnPart {
    std::string name;       ///< code page 1253
    CRect place;            ///< in the window's client area
    bool chosen = false;    ///< the keyboard has come to it, if the window has the focus
    bool selected = false;  ///< what it stands for is on show
};

/// Tells screen readers that the keyboard has come to a part, by its index among those of the window.
void TellPartChosen(const CWnd& window, int index);

}  // namespace platform
