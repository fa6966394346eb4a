#pragma once

#include "platform/dialogs/Dialog.h"

namespace kalyxo {

/// The About box: the versions of the program and its components. A click on the logo opens the page that was
/// prepared last in the text editor.
class CAboutDlg : public platform::CDialog {
  public:
    CAboutDlg();

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

  protected:
    bool OnInitDialog() override;

  private:
    void OnLButtonDown(platform::UINT flags, platform::CPoint point);
};

}  // namespace kalyxo
