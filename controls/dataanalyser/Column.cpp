#include "controls/dataanalyser/Column.h"

#include <array>
#include <charconv>

#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

namespace {

using namespace platform::literals;

constexpr double zeroCelsius = 273.15;
constexpr std::string_view unknownText = "–"_gr;
constexpr std::string_view antiquityText = "αρχαιότητα"_gr;

// Without units; in the order of the columns.
constexpr std::array<std::string_view, columnCount> names{
    "Ατομικός αριθμός"_gr,     "Σύμβολο"_gr,        "Όνομα"_gr,
    "Σχετική ατομική μάζα"_gr, "Ομάδα"_gr,          "Περίοδος"_gr,
    "Σημείο τήξης"_gr,         "Σημείο βρασμού"_gr, "Πυκνότητα"_gr,
    "Ηλεκτραρνητικότητα"_gr,   "Έτος ανακάλυψης"_gr};

std::string fixed(double value, int decimals) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

std::string temperature(const Figure& kelvin, TemperatureUnit unit) {
    const auto value = kelvin.value();
    if (!value || unit == TemperatureUnit::kelvin) return kelvin.withComma();
    const std::string digits = fixed(*value - zeroCelsius, kelvin.decimals());
    return Figure{digits}.withComma();
}

std::string knownText(const Element& element, Column column, TemperatureUnit unit) {
    switch (column) {
        case Column::number:
            return std::to_string(element.number);
        case Column::symbol:
            return std::string(element.symbol);
        case Column::name:
            return std::string(element.greekName);
        case Column::mass:
            return element.massText();
        case Column::group:
            return element.group() == 0 ? std::string() : std::to_string(element.group());
        case Column::period:
            return std::to_string(element.period());
        case Column::melting:
            return temperature(element.meltingPoint, unit);
        case Column::boiling:
            return temperature(element.boilingPoint, unit);
        case Column::density:
            return element.density.withComma();
        case Column::electronegativity:
            return element.electronegativity.withComma();
        case Column::year:
            return element.discovered == antiquity ? std::string(antiquityText)
                                                   : std::to_string(element.discovered);
    }
    return {};
}

}  // namespace

std::optional<Column> columnOfCode(int code) {
    if (code < 0 || code >= columnCount) return std::nullopt;
    return static_cast<Column>(code);
}

std::string heading(Column column, TemperatureUnit unit) {
    std::string text(names[static_cast<std::size_t>(column)]);
    if (column == Column::melting || column == Column::boiling) {
        text += unit == TemperatureUnit::kelvin ? " (K)" : std::string(" (°C)"_gr);
    }
    if (column == Column::density) text += " (g/cm³)"_gr;
    return text;
}

bool isText(Column column) { return column == Column::symbol || column == Column::name; }

std::string cellText(const Element& element, Column column, TemperatureUnit unit) {
    std::string text = knownText(element, column, unit);
    return text.empty() ? std::string(unknownText) : text;
}

std::optional<double> sortNumber(const Element& element, Column column) {
    switch (column) {
        case Column::number:
            return element.number;
        case Column::mass:
            return element.mass.value();
        case Column::group:
            return element.group() == 0 ? std::nullopt : std::optional<double>(element.group());
        case Column::period:
            return element.period();
        case Column::melting:
            return element.meltingPoint.value();
        case Column::boiling:
            return element.boilingPoint.value();
        case Column::density:
            return element.density.value();
        case Column::electronegativity:
            return element.electronegativity.value();
        case Column::year:
            return element.discovered;
        case Column::symbol:
        case Column::name:
            break;
    }
    return std::nullopt;
}

}  // namespace controls::dataanalyser
