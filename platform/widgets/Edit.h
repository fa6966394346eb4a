#pragma once

#include "platform/drawing/Font.h"
#include "platform/widgets/Control.h"

namespace platform {

/// An edit of one line, or of several with ES_MULTILINE.
class CEdit : public CControl {
  public:
    /// Makes one outside a dialog's template, in the parent's client area.
    bool Create(DWORD style, const CRect& rect, CWnd& parent, UINT id);

    void SetFont(const LOGFONT& font);
    void SetColors(COLORREF text, COLORREF background);
    /// Never shows the caret again.
    void HideCaret();
    /// Has an edit of several lines take no text from the clipboard, an input method or the mouse.
    void SetReadOnly();

    /// Selects the characters from `start` up to `end` (−1: to the end of the text), the caret after them and
    /// in view.
    void SetSel(int start, int end);
    /// Keeps typing from making the text longer than this; a text that the program sets may be.
    void LimitText(int length);
    /// A bar for a text of several lines that is taller than the edit; it wraps beside the bar.
    void ShowScrollBar(bool show);
    /// Lines as they are wrapped, at least 1.
    int GetLineCount() const;
};

}  // namespace platform
