#include "platform/widgets/ListBoxEntries.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/qt/QtConvert.h"
#include "platform/text/Fold.h"
#include "platform/widgets/Collation.h"

namespace platform {

namespace {

bool beginsWith(const std::string& text, const std::string& lowerPrefix) {
    return text.size() >= lowerPrefix.size() &&
           std::equal(lowerPrefix.begin(), lowerPrefix.end(), text.begin(),
                      [](char wanted, char c) { return lower(c) == wanted; });
}

}  // namespace

void ListBoxEntries::add(std::string_view text) {
    entries_.emplace_back(text);
    inOrder_ = false;
}

void ListBoxEntries::clear() {
    beginResetModel();
    entries_.clear();
    shown_ = 0;
    inOrder_ = true;
    endResetModel();
}

const std::string& ListBoxEntries::at(int index) const {
    putInOrder();
    return entries_[static_cast<std::size_t>(index)];
}

int ListBoxEntries::find(int after, std::string_view prefix) const {
    putInOrder();
    const std::string exact = toLower(prefix);
    const int found = findIf(after, [&](const std::string& text) { return beginsWith(text, exact); });
    if (found >= 0) return found;
    const std::string folded = fold(prefix);
    return findIf(after, [&](const std::string& text) { return fold(text).starts_with(folded); });
}

int ListBoxEntries::findIf(int after, const std::function<bool(const std::string&)>& matches) const {
    for (int i = 1; i <= count(); ++i) {
        const int index = (after + i) % count();
        if (matches(entries_[static_cast<std::size_t>(index)])) return index;
    }
    return -1;
}

int ListBoxEntries::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shown_; }

QVariant ListBoxEntries::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || index.row() >= count()) return {};
    return toQt(at(index.row()));
}

void ListBoxEntries::settle() {
    if (shown_ == count()) return;
    beginResetModel();
    putInOrder();
    shown_ = count();
    endResetModel();
}

void ListBoxEntries::putInOrder() const {
    if (inOrder_ || !sorted_) return;
    inOrder_ = true;
    std::vector<QCollatorSortKey> keys;
    keys.reserve(entries_.size());
    for (const std::string& entry : entries_) keys.push_back(greekOrder().sortKey(toQt(entry)));
    std::vector<std::size_t> order(entries_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    std::vector<std::string> ordered;
    ordered.reserve(entries_.size());
    for (const std::size_t from : order) ordered.push_back(std::move(entries_[from]));
    entries_ = std::move(ordered);
}

}  // namespace platform
