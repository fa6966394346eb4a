#pragma once

#include <string>
#include <string_view>

#include "platform/base/DialogTemplate.h"
#include "platform/windows/Wnd.h"

namespace platform {

class CDataExchange;

/// A dialog made from a template of the program's resources. Buttons send their ids as commands; Enter
/// pushes the button with the focus, else the default button, and Escape or closing the window is the
/// command IDCANCEL.
class CDialog : public CWnd {
  public:
    explicit CDialog(UINT templateId) : m_nTemplate(templateId) {}
    const MessageMap* GetMessageMap() const override;

    /// Shows the dialog in the middle of its owner (the active window, else the frame) and returns when it is
    /// ended: what EndDialog was given, or IDCANCEL when its window went without that, or −1 when there is no
    /// such template or the dialog is open already.
    int DoModal();
    /// Ends DoModal; hides a modeless dialog.
    void EndDialog(int result);
    /// Makes the dialog modeless and hidden; it belongs to the top-level window of `owner`, or to none. False
    /// when there is no such template, the dialog is open already, or its handler of WM_CREATE refused.
    bool Create(CWnd* owner = nullptr);

    UINT GetTemplateId() const { return m_nTemplate; }

    /// All of these do nothing, or give nothing, when there is no control of this id.
    void SetDlgItemText(int id, std::string_view text);
    std::string GetDlgItemText(int id) const;
    /// The control's window, 0 when there is none.
    HWND GetDlgItem(int id) const;
    void EnableDlgItem(int id, bool enable);
    void ShowDlgItem(int id, bool show);
    bool IsDlgItemEnabled(int id) const;
    /// Gives a control the focus.
    void GotoDlgCtrl(int id);

    /// Carries values from the members to the controls, or back when `save`. False when one is not valid: the
    /// user has been told and its control has the focus.
    bool UpdateData(bool save);

  protected:
    /// The controls are there and nothing is on show yet. True gives the focus to the first control that
    /// takes it, false leaves it. The default carries the values of the members to the controls.
    virtual bool OnInitDialog();
    /// The default ends the dialog if the values of the controls are valid.
    virtual void OnOK();
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    /// Names the members that belong to controls, by DDX_ and DDV_ calls.
    virtual void DoDataExchange(CDataExchange&) {}

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ok() { OnOK(); }
    void cancel() { OnCancel(); }

    UINT m_nTemplate;
    int m_nResult = IDCANCEL;
    bool m_bModeless = false;
};

}  // namespace platform
