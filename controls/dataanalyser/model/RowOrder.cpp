#include "controls/dataanalyser/model/RowOrder.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/text/Fold.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

namespace {

/// Sorts rows by their keys. Rows whose key is not known come last.
template <class Key, class IsKnown>
void sortByKeys(std::vector<int>& rows, const std::vector<Key>& keys, bool descending,
                const IsKnown& isKnown) {
    const auto keyOf = [&keys](int row) -> const Key& { return keys[static_cast<std::size_t>(row)]; };
    const auto unknown =
        std::stable_partition(rows.begin(), rows.end(), [&](int row) { return isKnown(keyOf(row)); });
    std::stable_sort(rows.begin(), unknown,
                     [&](int a, int b) { return descending ? keyOf(b) < keyOf(a) : keyOf(a) < keyOf(b); });
}

}  // namespace

Categories categoriesOf(const formats::DataSet& set) {
    Categories categories;
    categories.ofRow.assign(set.rowCount(), -1);
    const auto column =
        std::ranges::find(set.columns, formats::DataColumnKind::category, &formats::DataColumn::kind);
    if (column == set.columns.end()) return categories;
    for (std::size_t row = 0; row < set.rowCount(); ++row) {
        const std::string& name = column->cells[row];
        if (name.empty()) continue;
        const auto found = std::ranges::find(categories.names, name);
        categories.ofRow[row] = static_cast<int>(found - categories.names.begin());
        if (found == categories.names.end()) categories.names.push_back(name);
    }
    return categories;
}

std::vector<int> orderedRows(const formats::DataSet& set, const Categories& categories,
                             const RowOrder& order) {
    std::vector<int> rows(set.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    std::erase_if(rows, [&](int row) { return row < order.first || row > order.last; });
    if (order.category > 0) {
        std::erase_if(rows, [&](int row) {
            return categories.ofRow[static_cast<std::size_t>(row)] != order.category - 1;
        });
    }
    if (!order.column) {
        if (order.descending) std::ranges::reverse(rows);
        return rows;
    }
    const formats::DataColumn& column = set.columns[*order.column];
    if (column.isNumber()) {
        sortByKeys(rows, column.values, order.descending, [](double value) { return !std::isnan(value); });
        return rows;
    }
    std::vector<std::string> words(set.rowCount());
    std::ranges::transform(column.cells, words.begin(), platform::fold);
    sortByKeys(rows, words, order.descending, [](const std::string& word) { return !word.empty(); });
    return rows;
}

std::string orderWords(const formats::DataSet& set, const RowOrder& order) {
    using namespace platform::literals;
    if (!order.column) return std::string(order.descending ? "αντίστροφη σειρά"_gr : ""_gr);
    return std::string("ταξινόμηση: "_gr) + set.columns[*order.column].title +
           std::string(order.descending ? ", φθίνουσα"_gr : ", αύξουσα"_gr);
}

}  // namespace controls::dataanalyser
