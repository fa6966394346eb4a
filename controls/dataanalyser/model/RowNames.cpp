#include "controls/dataanalyser/model/RowNames.h"

#include <algorithm>

#include "platform/text/Fold.h"

namespace controls::dataanalyser {

namespace {

bool namesRows(const formats::DataColumn& column) {
    return column.kind == formats::DataColumnKind::text || column.kind == formats::DataColumnKind::formula;
}

template <class Matches>
int findRow(const formats::DataSet& set, std::span<const int> rows, const Matches& matches) {
    const auto found = std::ranges::find_if(rows, [&](int row) {
        return std::ranges::any_of(set.columns, [&](const formats::DataColumn& column) {
            return namesRows(column) && matches(platform::fold(column.cells[static_cast<std::size_t>(row)]));
        });
    });
    return found == rows.end() ? -1 : *found;
}

int findTyped(const formats::DataSet& set, std::span<const int> rows, std::string_view typed) {
    const std::string wanted = platform::fold(typed);
    const int exact = findRow(set, rows, [&](const std::string& words) { return words == wanted; });
    if (exact >= 0) return exact;
    return findRow(set, rows, [&](const std::string& words) { return words.starts_with(wanted); });
}

}  // namespace

std::string_view shortRowName(const formats::DataSet& set, std::size_t row) {
    const auto found = std::ranges::find_if(set.columns, namesRows);
    return found == set.columns.end() ? std::string_view() : std::string_view(found->cells[row]);
}

int RowSearch::type(std::string_view characters, std::int64_t milliseconds, const formats::DataSet& set,
                    std::span<const int> rows) {
    if (milliseconds - last_ > pauseMilliseconds) typed_.clear();
    last_ = milliseconds;
    const std::string longer = typed_ + std::string(characters);
    const int found = findTyped(set, rows, longer);
    typed_ = found >= 0 ? longer : std::string(characters);
    return found >= 0 ? found : findTyped(set, rows, typed_);
}

}  // namespace controls::dataanalyser
