#include "tools/drive/desktop/ControlItems.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>

#include "platform/qt/QtConvert.h"
#include "platform/widgets/ListBoxView.h"
#include "platform/widgets/ReportView.h"
#include "platform/widgets/TreeWidget.h"
#include "tools/drive/script/Numbers.h"

namespace drive {

using platform::ListBoxView;
using platform::ReportView;
using platform::TreeWidget;

namespace {

Json treeJson(const QTreeWidgetItem& above) {
    Json items = Json::array();
    for (int i = 0; i < above.childCount(); ++i) {
        const QTreeWidgetItem& item = *above.child(i);
        items.push_back({{"text", item.text(0).toStdString()},
                         {"expanded", item.isExpanded()},
                         {"selected", item.isSelected()},
                         {"children", treeJson(item)}});
    }
    return items;
}

void describeReport(const ReportView& list, Json& description) {
    Json columns = Json::array();
    for (int column = 0; column < list.columnCount(); ++column) {
        columns.push_back({{"text", list.headerItem()->text(column).toStdString()},
                           {"width", list.header()->sectionSize(column)}});
    }
    Json rows = Json::array();
    for (int row = 0; row < list.topLevelItemCount(); ++row) {
        Json cells = Json::array();
        for (int column = 0; column < list.columnCount(); ++column) {
            cells.push_back(list.topLevelItem(row)->text(column).toStdString());
        }
        rows.push_back(std::move(cells));
    }
    description["columns"] = std::move(columns);
    description["rows"] = std::move(rows);
    description["selected"] = list.selectedRow();
}

void describeList(ListBoxView& list, Json& description) {
    Json items = Json::array();
    for (int i = 0; i < list.entries().count(); ++i) items.push_back(text(list.entries().at(i)));
    description["items"] = std::move(items);
    description["selected"] = list.selected();
}

void describeCombo(const QComboBox& combo, Json& description) {
    Json items = Json::array();
    for (int i = 0; i < combo.count(); ++i) items.push_back(combo.itemText(i).toStdString());
    description["items"] = std::move(items);
    description["selected"] = combo.currentIndex();
}

/// The item below `above` whose path of texts is `wanted`. It is not split at `/`, since a text may hold one.
QModelIndex findBelow(const QAbstractItemModel& model, const QModelIndex& above, const QString& wanted) {
    for (int row = 0; row < model.rowCount(above); ++row) {
        const QModelIndex item = model.index(row, 0, above);
        const QString name = item.data().toString();
        if (name == wanted) return item;
        if (!wanted.startsWith(name + u'/')) continue;
        const QModelIndex found = findBelow(model, item, wanted.sliced(name.size() + 1));
        if (found.isValid()) return found;
    }
    return {};
}

}  // namespace

const char* kindOf(const QWidget& control) {
    if (qobject_cast<const QCheckBox*>(&control)) return "checkbox";
    if (qobject_cast<const QAbstractButton*>(&control)) return "button";
    if (qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QTextEdit*>(&control)) return "edit";
    if (qobject_cast<const QComboBox*>(&control)) return "combobox";
    if (dynamic_cast<const ListBoxView*>(&control)) return "list";
    if (dynamic_cast<const ReportView*>(&control)) return "listview";
    if (dynamic_cast<const TreeWidget*>(&control)) return "tree";
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label == nullptr) return "control";
    return label->pixmap(Qt::ReturnByValue).isNull() ? "static" : "bitmap";
}

void describeItems(QWidget& control, Json& description) {
    if (auto* list = dynamic_cast<ListBoxView*>(&control)) return describeList(*list, description);
    if (const auto* list = dynamic_cast<ReportView*>(&control)) return describeReport(*list, description);
    if (const auto* combo = qobject_cast<QComboBox*>(&control)) return describeCombo(*combo, description);
    if (const auto* tree = dynamic_cast<TreeWidget*>(&control)) {
        description["items"] = treeJson(*tree->invisibleRootItem());
    }
    if (const auto* box = qobject_cast<QCheckBox*>(&control)) description["checked"] = box->isChecked();
}

QModelIndex itemOf(const QAbstractItemView& view, const std::string& word) {
    const QModelIndex named = findBelow(*view.model(), {}, QString::fromStdString(word));
    const std::optional<int> index = number<int>(word);
    return named.isValid() || !index ? named : view.model()->index(*index, 0);
}

int comboItemOf(const QWidget& combo, const std::string& word) {
    const auto& box = *qobject_cast<const QComboBox*>(&combo);
    const int named = box.findText(QString::fromStdString(word));
    const std::optional<int> index = number<int>(word);
    return named < 0 && index && *index >= 0 && *index < box.count() ? *index : named;
}

}  // namespace drive
