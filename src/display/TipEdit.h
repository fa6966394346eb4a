#pragma once

#include "platform/widgets/Edit.h"
#include "platform/windows/Cursor.h"

namespace kalyxo {

/// A box with a text, like a tooltip, that hides as soon as the user does anything: at the next click in the
/// program's windows, at a key, and when the focus goes elsewhere. Its text cannot be typed in or selected.
class CTipEdit : public platform::CEdit {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    /// Makes it hidden in `parent`.
    bool CreateHidden(platform::CWnd& parent, platform::UINT id);
    /// Shows it with the keyboard focus and the mouse.
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
    /// Had the focus before, and has it again when the user dismisses the box.
    platform::HWND m_hwndFormer = 0;
};

}  // namespace kalyxo
