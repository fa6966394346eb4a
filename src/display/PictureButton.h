#pragma once

#include <string_view>

#include "platform/widgets/Button.h"

namespace kalyxo {

/// A button of the tool panel: a picture on a raised face, which sinks while it is held down.
class CPictureButton : public platform::CButton {
  public:
    const platform::MessageMap* GetMessageMap() const override;

    /// Makes the button on show; false, and nothing is made, when there is no bitmap `picture`. `name` is for
    /// screen readers, code page 1253.
    bool Create(const platform::CRect& rect, platform::CWnd& parent, platform::UINT id,
                platform::UINT picture, std::string_view name);
    void DrawItem(const platform::DRAWITEMSTRUCT& item) override;

    /// The window outside of the panel that lost the focus to a picture button last; 0 when none has.
    static platform::HWND FocusReturn();

  private:
    void OnSetFocus(platform::HWND loser);

    platform::CBitmap m_picture;
};

}  // namespace kalyxo
