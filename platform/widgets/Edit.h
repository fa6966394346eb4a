#pragma once

#include "platform/widgets/Control.h"

namespace platform {

/// A font by its name on the platform. The nearest installed font with Greek letters is used.
struct LOGFONT {
    std::string_view faceName;
    int height = 0;  ///< negative: height of the letters in pixels
    int weight = 400;
};

/// An edit with one line, or with several if it has the style ES_MULTILINE.
class CEdit : public CControl {
  public:
    /// Makes an edit outside a dialog template, in the parent's client area.
    bool Create(DWORD style, const CRect& rect, CWnd& parent, UINT id);

    void SetFont(const LOGFONT& font);
    void SetColors(COLORREF text, COLORREF background);
    /// Hides the caret for good. For edits with several lines.
    void HideCaret();
    /// Makes an edit with several lines ignore the clipboard, input methods and the mouse.
    void SetReadOnly();

    /// Selects the characters from `start` up to `end` (−1: the end of the text), puts the caret after them
    /// and scrolls it into view.
    void SetSel(int start, int end);
    /// Limits the length of a text that is typed. A text that the program sets may be longer.
    void LimitText(int length);
    /// Shows or hides a scroll bar in an edit with several lines. The text wraps to the left of the bar.
    void ShowScrollBar(bool show);
    /// The number of lines after wrapping, at least 1.
    int GetLineCount() const;
};

}  // namespace platform
