#include "platform/windows/Button.h"

#include <QAbstractButton>

#include "platform/handles/WindowTable.h"

namespace platform {

namespace {

QAbstractButton* widgetOf(const CButton& button) {
    return qobject_cast<QAbstractButton*>(WindowTable::instance().widget(button.GetSafeHwnd()));
}

}  // namespace

bool CButton::GetCheck() const {
    const QAbstractButton* const button = widgetOf(*this);
    return button && button->isChecked();
}

void CButton::SetCheck(bool checked) {
    if (QAbstractButton* const button = widgetOf(*this)) button->setChecked(checked);
}

}  // namespace platform
