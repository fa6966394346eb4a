#pragma once

#include "platform/windows/Cursor.h"
#include "platform/windows/Wnd.h"

namespace kalyxo {

/// The bar between two panes. The user drags it within a range. When the button is released, the bar sends
/// its parent WM_COMMAND with its position in wParam and its control id in lParam. The parent lays out the
/// panes.
class CSplitterBar : public platform::CWnd {
  public:
    static constexpr int kThickness = 7;

    CSplitterBar();
    const platform::CRuntimeClass& GetRuntimeClass() const override;
    const platform::MessageMap* GetMessageMap() const override;

    /// Creates the window at (x, y). The coordinate in the direction of movement is brought into [min, max]
    /// first. A horizontal bar moves up and down, a vertical one left and right.
    bool Create(int x, int y, int length, bool horizontal, int min, int max, platform::CWnd& parent);

    /// The coordinate in the direction of movement, in the parent's client area; −1 before creation.
    int GetPos() const { return m_nPos; }
    /// Changes the range. A bar outside it is moved into it, and the parent is told.
    void SetRange(int min, int max);
    /// Moves the bar to a position within its limits and tells the parent.
    void MoveBar(int position);
    /// Changes the length without moving the bar.
    void SetLength(int length);

  private:
    void OnPaint();
    bool OnSetCursor();
    void OnLButtonDown(platform::UINT flags, platform::CPoint point);
    void OnLButtonUp(platform::UINT flags, platform::CPoint point);
    void OnMouseMove(platform::UINT flags, platform::CPoint point);
    void OnKeyDown(platform::UINT key);
    void OnFocus(platform::HWND other);

    int along(platform::CPoint p) const { return m_bHorizontal ? p.y : p.x; }
    platform::CRect barRect(int length) const;
    int currentLength() const;
    void moveTo(int position);
    void notifyParent();
    void paintRaised(platform::CDC& dc) const;
    void paintDragged(platform::CDC& dc) const;

    int m_nPos = -1;
    int m_nFixed = 0;
    int m_nGrab = 0;
    platform::CBitmap m_pattern;
    int m_nMin = 0;
    int m_nMax = 0;
    bool m_bHorizontal = false;
    platform::CWnd* m_pParent = nullptr;
    bool m_bDragging = false;
    platform::CCursor m_cursor;
};

}  // namespace kalyxo
