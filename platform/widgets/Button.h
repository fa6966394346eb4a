#pragma once

#include "platform/widgets/Control.h"

namespace platform {

class CDC;

/// What a button that its object draws is to look like.
struct DRAWITEMSTRUCT {
    CDC& dc;                ///< the button's area
    CRect rcItem;           ///< all of it
    bool selected = false;  ///< held down
};

/// A push button or a check box. A click is the command of its id.
class CButton : public CControl {
  public:
    /// Makes a push button that DrawItem draws, with the style BS_OWNERDRAW; other buttons come from
    /// templates. `text` is what screen readers call it.
    bool Create(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id);
    /// Draws a button with the style BS_OWNERDRAW.
    virtual void DrawItem(const DRAWITEMSTRUCT&) {}

    bool GetCheck() const;
    void SetCheck(bool checked);
};

}  // namespace platform
