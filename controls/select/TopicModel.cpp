#include "controls/select/TopicModel.h"

#include <algorithm>

#include "controls/common/QtText.h"

namespace controls::select {

TopicModel::TopicModel(BrowseSelection& selection, QObject* parent)
    : QAbstractItemModel(parent), selection_(selection) {}

// The internal id of a topic is 0, that of an entry is the row of its topic plus one.
QModelIndex TopicModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex TopicModel::parent(const QModelIndex& child) const {
    if (!child.isValid() || isTopic(child)) return {};
    return createIndex(static_cast<int>(child.internalId()) - 1, 0, quintptr{0});
}

int TopicModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return static_cast<int>(list().topics().size());
    return isTopic(parent) ? static_cast<int>(listed(parent.row()).entries.size()) : 0;
}

int TopicModel::columnCount(const QModelIndex&) const { return 1; }

QVariant TopicModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) return {};
    return toQt(list().title(rowOf(index)));
}

Row TopicModel::rowOf(const QModelIndex& index) const {
    if (isTopic(index)) return {listed(index.row()).topic, std::nullopt};
    const TopicList::ListedTopic& topic = listed(index.parent().row());
    return {topic.topic, topic.entries[static_cast<std::size_t>(index.row())]};
}

QModelIndex TopicModel::indexOf(const Row& row) const {
    if (!list().contains(row)) return {};
    const auto topics = list().topics();
    const auto topic = std::ranges::lower_bound(topics, row.topic, {}, &TopicList::ListedTopic::topic);
    const QModelIndex topicIndex = index(static_cast<int>(topic - topics.begin()), 0);
    if (!row.entry) return topicIndex;
    const auto entry = std::ranges::lower_bound(topic->entries, *row.entry);
    return index(static_cast<int>(entry - topic->entries.begin()), 0, topicIndex);
}

TopicModel::Mark TopicModel::mark(const QModelIndex& index) const {
    const auto& shown = selection_.shownRow();
    const Row row = rowOf(index);
    if (!shown || shown->topic != row.topic) return Mark::none;
    if (shown->entry == row.entry) return Mark::shown;
    if (row.entry) return Mark::none;
    return list().opened(row.topic) && list().contains(*shown) ? Mark::parent : Mark::shown;
}

}  // namespace controls::select
