#include "platform/widgets/ListBox.h"

#include "platform/qt/WindowTable.h"
#include "platform/widgets/ListBoxView.h"

namespace platform {

namespace {

ListBoxView* viewOf(const CListBox& box) {
    return dynamic_cast<ListBoxView*>(WindowTable::instance().widget(box.GetSafeHwnd()));
}

}  // namespace

void CListBox::AddString(std::string_view text) {
    ListBoxView* const view = viewOf(*this);
    if (!view) return;
    view->entries().add(text);
    // Often many entries are added in a row; they are shown together.
    view->settleLater();
}

void CListBox::ResetContent() {
    if (ListBoxView* const view = viewOf(*this)) view->entries().clear();
}

std::string CListBox::GetText(int index) const {
    ListBoxView* const view = viewOf(*this);
    return view && index >= 0 && index < view->entries().count() ? view->entries().at(index) : std::string();
}

int CListBox::GetCurSel() const {
    ListBoxView* const view = viewOf(*this);
    return view ? view->selected() : -1;
}

void CListBox::SetCurSel(int index) {
    if (ListBoxView* const view = viewOf(*this)) view->select(index);
}

int CListBox::FindString(int after, std::string_view prefix) const {
    ListBoxView* const view = viewOf(*this);
    return view ? view->entries().find(after, prefix) : -1;
}

}  // namespace platform
