#include "platform/dialogs/Dialog.h"

#include <QPointer>
#include <algorithm>

#include "platform/base/Resources.h"
#include "platform/dialogs/DataExchange.h"
#include "platform/dialogs/DialogControls.h"
#include "platform/dialogs/DialogWidget.h"
#include "platform/dialogs/OwnerWindow.h"
#include "platform/drawing/LightPalette.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlText.h"
#include "platform/windows/MessageMap.h"

namespace platform {

namespace {

constexpr int noDialog = -1;

const DialogTemplate* findTemplate(UINT id) {
    const auto dialogs = Resources().dialogs;
    const auto found = std::ranges::find(dialogs, id, &DialogTemplate::id);
    return found == dialogs.end() ? nullptr : &*found;
}

COLORREF background() {
    const QColor colour = lightPalette().color(QPalette::Window);
    return RGB(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
               static_cast<unsigned>(colour.blue()));
}

}  // namespace

const MessageMap* CDialog::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {
        OnCommandId<&CDialog::ok>(IDOK),
        OnCommandId<&CDialog::cancel>(IDCANCEL),
    };
    static const MessageMap map{CWnd::GetMessageMap(), entries};
    return &map;
}

int CDialog::DoModal() {
    const DialogTemplate* const description = findTemplate(templateId_);
    if (!description || GetSafeHwnd() != 0) return noDialog;
    result_ = IDCANCEL;
    modeless_ = false;
    const QPointer<QWidget> owner = ownerWindow();
    auto& widget = makeQtChild<DialogWidget>(*this, *description, owner.data());
    if (OnInitDialog()) widget.focusFirstControl();
    widget.runModal();
    DestroyWindow();
    if (owner) owner->activateWindow();
    return result_;
}

bool CDialog::Create(CWnd* owner) {
    const DialogTemplate* const description = findTemplate(templateId_);
    if (!description || GetSafeHwnd() != 0) return false;
    modeless_ = true;
    const WindowWidget* const around = owner ? WindowWidget::of(*owner) : nullptr;
    auto& widget = makeQtChild<DialogWidget>(*this, *description, around ? around->window() : nullptr);
    CREATESTRUCT cs;
    if (widget.send(WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) == -1) {
        DestroyWindow();
        return false;
    }
    if (OnInitDialog()) widget.focusFirstControl();
    return true;
}

void CDialog::EndDialog(int result) {
    auto* const widget = dynamic_cast<DialogWidget*>(WindowWidget::of(*this));
    if (!widget) return;
    result_ = result;
    widget->finish();
    if (modeless_) ShowWindow(SW_HIDE);
}

void CDialog::SetDlgItemText(int id, std::string_view text) {
    if (QWidget* const control = dialogControl(GetSafeHwnd(), id)) setControlText(*control, text);
}

std::string CDialog::GetDlgItemText(int id) const {
    const QWidget* const control = dialogControl(GetSafeHwnd(), id);
    return control ? controlText(*control) : std::string();
}

HWND CDialog::GetDlgItem(int id) const {
    return WindowTable::instance().handleOf(dialogControl(GetSafeHwnd(), id));
}

void CDialog::EnableDlgItem(int id, bool enable) {
    if (QWidget* const control = dialogControl(GetSafeHwnd(), id)) control->setEnabled(enable);
}

void CDialog::ShowDlgItem(int id, bool show) {
    if (QWidget* const control = dialogControl(GetSafeHwnd(), id)) control->setVisible(show);
}

bool CDialog::IsDlgItemEnabled(int id) const {
    const QWidget* const control = dialogControl(GetSafeHwnd(), id);
    return control && control->isEnabled();
}

void CDialog::GotoDlgCtrl(int id) {
    if (QWidget* const control = dialogControl(GetSafeHwnd(), id)) control->setFocus(Qt::OtherFocusReason);
}

bool CDialog::UpdateData(bool save) {
    CDataExchange exchange(*this, save);
    DoDataExchange(exchange);
    return exchange.Valid();
}

bool CDialog::OnInitDialog() {
    UpdateData(false);
    return true;
}

void CDialog::OnOK() {
    if (UpdateData(true)) EndDialog(IDOK);
}

LRESULT CDialog::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            if (wParam == 0) return 0;
            reinterpret_cast<CDC*>(wParam)->FillSolidRect(GetClientRect(), background());
            return 1;
        case WM_KEYDOWN:
            if (wParam == VK_RETURN) pushDefaultButton(GetSafeHwnd());
            if (wParam == VK_ESCAPE) SendMessage(WM_COMMAND, IDCANCEL);
            return 0;
        case WM_CLOSE:
            SendMessage(WM_COMMAND, IDCANCEL);
            return 0;
        default:
            return CWnd::DefWindowProc(message, wParam, lParam);
    }
}

}  // namespace platform
