#include "platform/widgets/TreeCtrl.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/widgets/Collation.h"
#include "platform/widgets/TreeWidget.h"

namespace platform {

namespace {

constexpr int dataRole = Qt::UserRole;

TreeWidget* widgetOf(const CTreeCtrl& tree) {
    return dynamic_cast<TreeWidget*>(WindowTable::instance().widget(tree.GetSafeHwnd()));
}

QTreeWidgetItem* toQt(HTREEITEM item) { return reinterpret_cast<QTreeWidgetItem*>(item); }

HTREEITEM handleOf(QTreeWidgetItem* item) { return reinterpret_cast<HTREEITEM>(item); }

/// The sibling of an item that is `step` places below it.
HTREEITEM sibling(HTREEITEM item, int step) {
    QTreeWidgetItem* const it = toQt(item);
    if (!it || !it->treeWidget()) return nullptr;
    QTreeWidgetItem* const above = it->parent() ? it->parent() : it->treeWidget()->invisibleRootItem();
    // The index of an item knows its row; the parent would have to search for it.
    return handleOf(above->child(it->treeWidget()->indexFromItem(it).row() + step));
}

UINT sideOf(const QRect& area, QPoint point) {
    UINT flags = 0;
    if (point.y() < area.top()) flags |= TVHT_ABOVE;
    if (point.y() > area.bottom()) flags |= TVHT_BELOW;
    if (point.x() < area.left()) flags |= TVHT_TOLEFT;
    if (point.x() > area.right()) flags |= TVHT_TORIGHT;
    return flags;
}

}  // namespace

HTREEITEM CTreeCtrl::InsertItem(std::string_view text, HTREEITEM parent, TreePlace place) {
    TreeWidget* const tree = widgetOf(*this);
    if (!tree) return nullptr;
    return handleOf(tree->insert(platform::toQt(text), toQt(parent), place == TreePlace::sorted));
}

void CTreeCtrl::DeleteItem(HTREEITEM item) { const std::unique_ptr<QTreeWidgetItem> gone(toQt(item)); }

void CTreeCtrl::DeleteAllItems() {
    if (TreeWidget* const tree = widgetOf(*this)) tree->clear();
}

std::string CTreeCtrl::GetItemText(HTREEITEM item) const {
    return item ? fromQt(toQt(item)->text(0)) : std::string();
}

void CTreeCtrl::SetItemText(HTREEITEM item, std::string_view text) {
    if (item) toQt(item)->setText(0, platform::toQt(text));
}

LPARAM CTreeCtrl::GetItemData(HTREEITEM item) const {
    return item ? static_cast<LPARAM>(toQt(item)->data(0, dataRole).toLongLong()) : 0;
}

void CTreeCtrl::SetItemData(HTREEITEM item, LPARAM data) {
    if (item) toQt(item)->setData(0, dataRole, qlonglong{data});
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree ? handleOf(tree->topLevelItem(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
    return item ? handleOf(toQt(item)->child(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const {
    return item ? handleOf(toQt(item)->parent()) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const { return sibling(item, 1); }

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM item) const { return sibling(item, -1); }

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM item) const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree && item ? handleOf(tree->itemBelow(toQt(item))) : nullptr;
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM item) const {
    const TreeWidget* const tree = widgetOf(*this);
    return tree && item ? handleOf(tree->itemAbove(toQt(item))) : nullptr;
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    const TreeWidget* const tree = widgetOf(*this);
    const QList<QTreeWidgetItem*> chosen = tree ? tree->selectedItems() : QList<QTreeWidgetItem*>();
    return chosen.isEmpty() ? nullptr : handleOf(chosen.front());
}

void CTreeCtrl::SelectItem(HTREEITEM item) {
    TreeWidget* const tree = widgetOf(*this);
    if (!tree || !item) return;
    tree->setCurrentItem(toQt(item));
    EnsureVisible(item);
}

void CTreeCtrl::Expand(HTREEITEM item) {
    if (item) toQt(item)->setExpanded(true);
}

void CTreeCtrl::EnsureVisible(HTREEITEM item) {
    TreeWidget* const tree = widgetOf(*this);
    if (tree && item) tree->scrollToItem(toQt(item));
}

void CTreeCtrl::SortChildren(HTREEITEM item) {
    if (!item) return;
    const QList<QTreeWidgetItem*> taken = toQt(item)->takeChildren();
    std::vector<std::pair<QCollatorSortKey, QTreeWidgetItem*>> children;
    for (QTreeWidgetItem* const child : taken) {
        children.emplace_back(greekOrder().sortKey(child->text(0)), child);
    }
    std::ranges::stable_sort(children, [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [key, child] : children) toQt(item)->addChild(child);
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT& flags) const {
    const TreeWidget* const tree = widgetOf(*this);
    flags = tree ? sideOf(tree->viewport()->rect(), platform::toQt(point)) : TVHT_NOWHERE;
    if (flags != 0) return nullptr;
    const HTREEITEM item = handleOf(tree->itemAt(platform::toQt(point)));
    flags = item ? TVHT_ONITEM : TVHT_NOWHERE;
    return item;
}

}  // namespace platform
