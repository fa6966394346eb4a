#include "platform/widgets/Button.h"

#include <QAbstractButton>

#include "platform/qt/WindowTable.h"
#include "platform/widgets/ControlFactory.h"
#include "platform/windows/ControlLink.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

/// The bits of a button's style that hold its kind.
constexpr DWORD buttonKindMask = 0x000F;

QAbstractButton* widgetOf(const CButton& button) {
    return qobject_cast<QAbstractButton*>(WindowTable::instance().widget(button.GetSafeHwnd()));
}

}  // namespace

bool CButton::Create(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id) {
    WindowWidget* const around = WindowWidget::of(parent);
    if (Bound() || !around || (style & buttonKindMask) != BS_OWNERDRAW) return false;
    makeOwnerDrawButton(*around, static_cast<int>(id)).bind(*this);
    SetWindowText(text);
    MoveWindow(rect);
    ShowWindow(style & WS_VISIBLE ? SW_SHOW : SW_HIDE);
    return true;
}

bool CButton::GetCheck() const {
    const QAbstractButton* const button = widgetOf(*this);
    return button && button->isChecked();
}

void CButton::SetCheck(bool checked) {
    if (QAbstractButton* const button = widgetOf(*this)) button->setChecked(checked);
}

}  // namespace platform
