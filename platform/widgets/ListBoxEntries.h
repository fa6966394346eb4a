#pragma once

#include <QAbstractListModel>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The entries of a list box, in code page 1253. A sorted list is put in order when it is next read, so
/// adding many entries costs only one sort.
class ListBoxEntries : public QAbstractListModel {
  public:
    explicit ListBoxEntries(bool sorted) : sorted_(sorted) {}

    void add(std::string_view text);
    void clear();
    int count() const { return static_cast<int>(entries_.size()); }
    const std::string& at(int index) const;
    /// The first entry that begins with `prefix`, in upper or lower case; without one, the first that does so
    /// without regard to accents. The search starts after entry
    /// `after` and wraps around. −1 when there is none.
    int find(int after, std::string_view prefix) const;

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Sorts the new entries in, and shows them.
    void settle();

  private:
    void putInOrder() const;
    int findIf(int after, const std::function<bool(const std::string&)>& matches) const;

    bool sorted_;
    mutable bool inOrder_ = true;
    mutable std::vector<std::string> entries_;
    int shown_ = 0;  ///< how many entries the view knows
};

}  // namespace platform
