#pragma once

#include <string_view>

#include "platform/widgets/Button.h"

namespace kalyxo {

/// A button of the tool panel: a picture on a raised face that sinks while the button is pressed.
class CPictureButton : public platform::CButton {
  public:
    const platform::MessageMap* GetMessageMap() const override;

    /// Creates the visible button. False, and nothing is created, when there is no bitmap `picture`. `name`
    /// is for screen readers, in code page 1253.
    bool Create(const platform::CRect& rect, platform::CWnd& parent, platform::UINT id,
                platform::UINT picture, std::string_view name);
    void DrawItem(const platform::DRAWITEMSTRUCT& item) override;

    /// The window outside the panel from which a picture button last took the focus, 0 when there is none.
    static platform::HWND FocusReturn();

  private:
    void OnSetFocus(platform::HWND loser);

    platform::CBitmap m_picture;
};

}  // namespace kalyxo
