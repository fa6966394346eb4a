#pragma once

#include "platform/widgets/Edit.h"
#include "platform/windows/Cursor.h"

namespace kalyxo {

/// A box with a text, like a tooltip. It hides at the next click in the program's windows, at the next key,
/// and when it loses the focus. Its text can be neither edited nor selected.
class CTipEdit : public platform::CEdit {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    /// Creates the hidden box in `parent`.
    bool CreateHidden(platform::CWnd& parent, platform::UINT id);
    /// Shows the box, which takes the keyboard focus and captures the mouse.
    void Pop();
    void Hide();

  private:
    void OnSetFocus(platform::HWND from);
    void OnKillFocus(platform::HWND);
    void OnLButtonDown(platform::UINT flags, platform::CPoint point);
    void OnKeyDown(platform::UINT key);
    bool OnSetCursor();
    void dismiss();

    platform::CCursor m_cursor = platform::CCursor::Arrow();
    /// The window that had the focus before. It gets the focus again when the user dismisses the box.
    platform::HWND m_hwndFormer = 0;
};

}  // namespace kalyxo
