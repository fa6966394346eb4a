#pragma once

#include <QAbstractItemModel>
#include <utility>

#include "controls/select/model/BrowseSelection.h"

namespace controls::select {

/// The browse selection's list as a tree of two levels for Qt's views.
class TopicModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    /// How a line stands to the place on show.
    enum class Mark {
        none,
        parent,  ///< its entry is on show and listed below it
        shown,   ///< it is on show, or its entry is, but not listed or inside the closed topic
    };

    TopicModel(BrowseSelection& selection, QObject* parent);

    /// Carries out a change of what is listed.
    template <class Change>
    void reset(Change&& change) {
        beginResetModel();
        std::forward<Change>(change)();
        endResetModel();
    }

    Row rowOf(const QModelIndex& index) const;
    /// An invalid index when the line is not listed.
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
