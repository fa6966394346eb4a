#pragma once

#include "platform/widgets/Control.h"

namespace platform {

class CDC;

/// How a button is to be drawn by its object.
struct DRAWITEMSTRUCT {
    CDC& dc;                ///< draws on the button
    CRect rcItem;           ///< the whole button
    bool selected = false;  ///< held down
};

/// A push button or a check box. A click sends the command of its id.
class CButton : public CControl {
  public:
    /// Makes a push button with the style BS_OWNERDRAW, which DrawItem draws; other buttons come from dialog
    /// templates. `text` is its name for screen readers.
    bool Create(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id);
    /// Draws a button with the style BS_OWNERDRAW.
    virtual void DrawItem(const DRAWITEMSTRUCT&) {}

    bool GetCheck() const;
    void SetCheck(bool checked);
};

}  // namespace platform
