#pragma once

#include <string>
#include <string_view>

#include "platform/base/DialogTemplate.h"
#include "platform/windows/Wnd.h"

namespace platform {

class CDataExchange;

/// A dialog that is made from a template of the program's resources. Buttons send their ids as commands.
/// Enter pushes the button with the focus, else the default button. Escape and closing the window send the
/// command IDCANCEL.
class CDialog : public CWnd {
  public:
    explicit CDialog(UINT templateId) : templateId_(templateId) {}
    const MessageMap* GetMessageMap() const override;

    /// Shows the dialog in the middle of its owner (the active window, else the frame) and returns when it
    /// has ended. The result is that of EndDialog; IDCANCEL when the window ended without EndDialog; −1 when
    /// there is no such template or the dialog is open already.
    int DoModal();
    /// Ends DoModal; hides a modeless dialog.
    void EndDialog(int result);
    /// Makes the dialog modeless and hidden. Its owner is the top-level window of `owner`; it has none for
    /// null. False when there is no such template, the dialog is open already, or its handler of WM_CREATE
    /// refused.
    bool Create(CWnd* owner = nullptr);

    UINT GetTemplateId() const { return templateId_; }

    /// The following functions do nothing, or return nothing, when there is no control with this id.
    void SetDlgItemText(int id, std::string_view text);
    std::string GetDlgItemText(int id) const;
    /// The window of a control, 0 when there is none.
    HWND GetDlgItem(int id) const;
    void EnableDlgItem(int id, bool enable);
    void ShowDlgItem(int id, bool show);
    bool IsDlgItemEnabled(int id) const;
    /// Gives a control the focus.
    void GotoDlgCtrl(int id);

    /// Transfers values from the members to the controls, or back when `save`. False when a value is invalid:
    /// the user has been told, and the control with this value has the focus.
    bool UpdateData(bool save);

  protected:
    /// Called when the controls exist and nothing is visible yet. True gives the focus to the first control
    /// that takes it, false leaves the focus. The default transfers the values of the members to the
    /// controls.
    virtual bool OnInitDialog();
    /// The default ends the dialog if the values of the controls are valid.
    virtual void OnOK();
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    /// Connects members with controls, by calls of DDX_ and DDV_ functions.
    virtual void DoDataExchange(CDataExchange&) {}

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ok() { OnOK(); }
    void cancel() { OnCancel(); }

    UINT templateId_;
    int result_ = IDCANCEL;
    bool modeless_ = false;
};

}  // namespace platform
