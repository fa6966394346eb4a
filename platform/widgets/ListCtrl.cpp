#include "platform/widgets/ListCtrl.h"

#include <QHeaderView>
#include <algorithm>
#include <vector>

#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/widgets/ReportView.h"

namespace platform {

namespace {

constexpr int dataRole = Qt::UserRole;

ReportView* viewOf(const CListCtrl& list) {
    return dynamic_cast<ReportView*>(WindowTable::instance().widget(list.GetSafeHwnd()));
}

QTreeWidgetItem* rowOf(const CListCtrl& list, int row) {
    ReportView* const view = viewOf(list);
    return view ? view->topLevelItem(row) : nullptr;
}

LPARAM dataOf(const QTreeWidgetItem& item) {
    return static_cast<LPARAM>(item.data(0, dataRole).toLongLong());
}

}  // namespace

void CListCtrl::InsertColumn(std::string_view text, int width) {
    ReportView* const view = viewOf(*this);
    if (!view) return;
    const int column = view->columnCount();
    view->setColumnCount(column + 1);
    view->headerItem()->setText(column, toQt(text));
    view->header()->resizeSection(column, width);
}

int CListCtrl::GetColumnWidth(int column) const {
    ReportView* const view = viewOf(*this);
    return view ? view->header()->sectionSize(column) : 0;
}

int CListCtrl::InsertItem(std::string_view text) {
    ReportView* const view = viewOf(*this);
    return view ? view->addRow(toQt(text)) : -1;
}

void CListCtrl::DeleteAllItems() {
    if (ReportView* const view = viewOf(*this)) view->QTreeWidget::clear();
}

int CListCtrl::GetItemCount() const {
    ReportView* const view = viewOf(*this);
    return view ? view->topLevelItemCount() : 0;
}

void CListCtrl::SetItemText(int row, int column, std::string_view text) {
    if (QTreeWidgetItem* const item = rowOf(*this, row)) item->setText(column, toQt(text));
}

std::string CListCtrl::GetItemText(int row, int column) const {
    const QTreeWidgetItem* const item = rowOf(*this, row);
    return item ? fromQt(item->text(column)) : std::string();
}

void CListCtrl::SetItemData(int row, LPARAM data) {
    if (QTreeWidgetItem* const item = rowOf(*this, row)) item->setData(0, dataRole, qlonglong{data});
}

LPARAM CListCtrl::GetItemData(int row) const {
    const QTreeWidgetItem* const item = rowOf(*this, row);
    return item ? dataOf(*item) : 0;
}

int CListCtrl::GetSelectedItem() const {
    ReportView* const view = viewOf(*this);
    return view ? view->selectedRow() : -1;
}

void CListCtrl::SelectItem(int row) {
    QTreeWidgetItem* const item = rowOf(*this, row);
    if (!item) return;
    viewOf(*this)->setCurrentItem(item);
    viewOf(*this)->scrollToItem(item);
}

void CListCtrl::SortItems(const std::function<int(LPARAM first, LPARAM second)>& compare) {
    ReportView* const view = viewOf(*this);
    if (!view) return;
    std::vector<QTreeWidgetItem*> rows;
    rows.reserve(static_cast<std::size_t>(view->topLevelItemCount()));
    for (int i = 0; i < view->topLevelItemCount(); ++i) rows.push_back(view->topLevelItem(i));
    std::ranges::stable_sort(rows, [&](const QTreeWidgetItem* a, const QTreeWidgetItem* b) {
        return compare(dataOf(*a), dataOf(*b)) < 0;
    });
    QTreeWidgetItem* const selected = rowOf(*this, view->selectedRow());
    view->invisibleRootItem()->takeChildren();
    view->invisibleRootItem()->addChildren({rows.begin(), rows.end()});
    if (selected) view->setCurrentItem(selected);
}

}  // namespace platform
