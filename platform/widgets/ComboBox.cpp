#include "platform/widgets/ComboBox.h"

#include <QComboBox>

#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

QComboBox* widgetOf(const CComboBox& box) {
    return qobject_cast<QComboBox*>(WindowTable::instance().widget(box.GetSafeHwnd()));
}

}  // namespace

int CComboBox::AddString(std::string_view text) {
    QComboBox* const box = widgetOf(*this);
    if (!box) return -1;
    // Qt would select the first entry that is added.
    const int selected = box->currentIndex();
    box->addItem(toQt(text));
    box->setCurrentIndex(selected);
    return box->count() - 1;
}

int CComboBox::GetCurSel() const {
    const QComboBox* const box = widgetOf(*this);
    return box ? box->currentIndex() : -1;
}

void CComboBox::SetCurSel(int index) {
    if (QComboBox* const box = widgetOf(*this)) box->setCurrentIndex(index);
}

std::string CComboBox::GetLBText(int index) const {
    const QComboBox* const box = widgetOf(*this);
    return box ? fromQt(box->itemText(index)) : std::string();
}

}  // namespace platform
