#include "controls/dataanalyser/model/RowNames.h"

#include <algorithm>

#include "platform/text/Fold.h"

namespace controls::dataanalyser {

namespace {

bool namesRows(const formats::DataColumn& column) {
    return column.kind == formats::DataColumnKind::text || column.kind == formats::DataColumnKind::formula;
}

template <class Matches>
std::optional<int> findRow(const formats::DataSet& set, std::span<const int> rows, const Matches& matches) {
    const auto found = std::ranges::find_if(rows, [&](int row) {
        return std::ranges::any_of(set.columns, [&](const formats::DataColumn& column) {
            return namesRows(column) && matches(platform::fold(column.cells[static_cast<std::size_t>(row)]));
        });
    });
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

}  // namespace

std::string_view shortRowName(const formats::DataSet& set, std::size_t row) {
    const auto found = std::ranges::find_if(set.columns, namesRows);
    return found == set.columns.end() ? std::string_view() : std::string_view(found->cells[row]);
}

std::optional<int> findRowByStart(const formats::DataSet& set, std::span<const int> rows,
                                  std::string_view typed) {
    const std::string wanted = platform::fold(typed);
    const auto exact = findRow(set, rows, [&](const std::string& words) { return words == wanted; });
    if (exact) return exact;
    return findRow(set, rows, [&](const std::string& words) { return words.starts_with(wanted); });
}

}  // namespace controls::dataanalyser
