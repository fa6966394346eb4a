#include "controls/dataanalyser/RowOrder.h"

#include <algorithm>
#include <compare>
#include <string>
#include <utility>

#include "platform/text/Fold.h"

namespace controls::dataanalyser {

namespace {

/// What rows are compared by; of the two parts one is alike in all rows of a column.
struct SortKey {
    std::optional<double> number;
    std::string words;
};

SortKey keyOf(const Element& element, Column column) {
    if (column == Column::symbol) return {0, platform::fold(element.symbol)};
    if (column == Column::name) return {0, platform::fold(element.greekName)};
    return {sortNumber(element, column), {}};
}

bool before(const SortKey& a, const SortKey& b, bool descending) {
    if (a.number.has_value() != b.number.has_value()) return a.number.has_value();
    if (!a.number) return false;
    const auto order = std::pair(*a.number, a.words) <=> std::pair(*b.number, b.words);
    return descending ? std::is_gt(order) : std::is_lt(order);
}

}  // namespace

std::vector<int> orderedRows(const RowOrder& order) {
    std::vector<std::pair<SortKey, int>> rows;
    for (const Element& element : elements()) {
        if (order.family && element.family != *order.family) continue;
        rows.emplace_back(keyOf(element, order.column), element.number);
    }
    std::ranges::stable_sort(
        rows, [&](const auto& a, const auto& b) { return before(a.first, b.first, order.descending); });
    std::vector<int> numbers;
    numbers.reserve(rows.size());
    for (const auto& row : rows) numbers.push_back(row.second);
    return numbers;
}

}  // namespace controls::dataanalyser
