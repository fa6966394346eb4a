#pragma once

#include <array>

#include "platform/dialogs/Dialog.h"
#include "src/display/PictureButton.h"

namespace kalyxo {

/// The program's toolbar: a small floating window of picture buttons, each of which sends commands to the
/// main window.
class CToolPanel : public platform::CDialog {
  public:
    CToolPanel();

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    /// Shows the panel for the first time, in the top right corner of the panes, which are given in screen
    /// pixels.
    void ShowAtCorner(const platform::CRect& panes);
    /// Hides the panel. A rectangle flies from its place to the top right corner of the main window.
    void AnimateHide();
    /// A rectangle flies from the top right corner of the view to the panel's last place, where the panel
    /// appears.
    void AnimateShow(const platform::CRect& view);

  protected:
    void OnOK() override;
    void OnCancel() override { AnimateHide(); }

  private:
    int OnCreate(platform::CREATESTRUCT& cs);
    void OnCopy();
    void OnPaste();
    template <platform::UINT Command>
    void OnButton() {
        send(Command);
        returnFocus();
    }
    void returnFocus();
    void send(platform::UINT command);
    platform::CRect captionPlace() const;

    std::array<CPictureButton, 6> m_buttons;
};

}  // namespace kalyxo
