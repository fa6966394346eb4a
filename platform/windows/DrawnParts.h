#pragma once

#include <string>

#include "platform/base/Geometry.h"

namespace platform {

class CWnd;

/// A part of a window that the window draws itself and the user can push like a button, as it is described to
/// screen readers.
struct DrawnPart {
    std::string name;       ///< code page 1253
    CRect place;            ///< in the client area
    bool chosen = false;    ///< the keyboard has chosen it; matters while the window has the focus
    bool selected = false;  ///< what it stands for is shown now
};

/// Lets screen readers find the parts that windows draw. Calling it again changes nothing.
void installDrawnPartsAccess();

/// Tells screen readers that the keyboard has chosen a part of the window, by its index.
void TellPartChosen(const CWnd& window, int index);

}  // namespace platform
