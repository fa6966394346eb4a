#include "controls/dataanalyser/model/Extremes.h"

#include <cmath>

namespace controls::dataanalyser {

std::optional<Extremes> extremesOf(const formats::DataColumn& column, std::span<const int> rows,
                                   TemperatureUnit unit) {
    std::optional<Extremes> found;
    const auto valueOf = [&](int row) { return cellValue(column, static_cast<std::size_t>(row), unit); };
    double sum = 0;
    int count = 0;
    for (const int row : rows) {
        const double value = valueOf(row);
        if (!std::isfinite(value)) continue;
        if (!found) found = Extremes{row, row};
        if (value < valueOf(found->smallest)) found->smallest = row;
        if (value > valueOf(found->largest)) found->largest = row;
        sum += value;
        ++count;
    }
    if (found) found->mean = sum / count;
    return found;
}

}  // namespace controls::dataanalyser
