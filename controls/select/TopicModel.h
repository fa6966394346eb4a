#pragma once

#include <QAbstractItemModel>
#include <utility>

#include "controls/select/model/BrowseSelection.h"

namespace controls::select {

/// The list of the browse selection as a tree of two levels, for Qt's views.
class TopicModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    /// How a line is related to the place that is shown.
    enum class Mark {
        none,
        parent,  ///< the line is the topic of the place, which stands below it
        shown,   ///< the line is the place, or its topic when the line of the place is not visible
    };

    TopicModel(BrowseSelection& selection, QObject* parent);

    /// Carries out a change of the list and tells the view.
    template <class Change>
    void reset(Change&& change) {
        beginResetModel();
        std::forward<Change>(change)();
        endResetModel();
    }

    Row rowOf(const QModelIndex& index) const;
    /// The index of a line, invalid when the line is not listed.
    QModelIndex indexOf(const Row& row) const;

    Mark mark(const QModelIndex& index) const;
    std::vector<Span> spans(const QModelIndex& index) const { return list().spans(rowOf(index)); }
    static bool isTopic(const QModelIndex& index) { return index.internalId() == 0; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override { return rowCount(parent) > 0; }
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    const TopicList& list() const { return selection_.list(); }
    const TopicList::ListedTopic& listed(int row) const {
        return list().topics()[static_cast<std::size_t>(row)];
    }

    BrowseSelection& selection_;
};

}  // namespace controls::select
