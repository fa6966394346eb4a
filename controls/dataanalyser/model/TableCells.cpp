#include "controls/dataanalyser/model/TableCells.h"

#include <cmath>
#include <limits>

#include "controls/elements/Element.h"
#include "controls/elements/NumberText.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

namespace {

using namespace platform::literals;

constexpr std::string_view kelvin = "K";
constexpr std::string_view celsius = "°C"_gr;

/// The unit in which a column is shown, empty when it has none.
std::string shownUnit(const formats::DataColumn& column, TemperatureUnit unit) {
    if (!isTemperature(column)) return column.unit;
    return std::string(unit == TemperatureUnit::kelvin ? kelvin : celsius);
}

/// The number that converts the column's values into the unit shown, when it is added to them.
double shift(const formats::DataColumn& column, TemperatureUnit unit) {
    if (!isTemperature(column) || shownUnit(column, unit) == column.unit) return 0;
    return unit == TemperatureUnit::kelvin ? zeroCelsius : -zeroCelsius;
}

int decimalsOf(std::string_view text) {
    const std::size_t comma = text.find(',');
    return comma == std::string_view::npos ? 0 : static_cast<int>(text.size() - comma - 1);
}

}  // namespace

bool isTemperature(const formats::DataColumn& column) {
    return column.isNumber() && (column.unit == kelvin || column.unit == celsius);
}

std::string heading(const formats::DataColumn& column, TemperatureUnit unit) {
    const std::string shown = shownUnit(column, unit);
    return shown.empty() ? column.title : column.title + " (" + shown + ')';
}

std::string cellText(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit) {
    const std::string& text = column.cells[row];
    const double added = shift(column, unit);
    if (added == 0 || !std::isfinite(column.values[row])) return text;
    return fixedNumber(column.values[row] + added, decimalsOf(text));
}

double cellValue(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit) {
    if (!column.isNumber()) return std::numeric_limits<double>::quiet_NaN();
    return column.values[row] + shift(column, unit);
}

std::string_view unknownText() { return "–"_gr; }

}  // namespace controls::dataanalyser
