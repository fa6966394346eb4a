#include "controls/dataanalyser/TableText.h"

namespace controls::dataanalyser {

namespace {

/// Calls `cell` with each column, and `between` before each but the first.
template <class Cell, class Between>
void eachColumn(const Cell& cell, const Between& between) {
    for (int code = 0; code < columnCount; ++code) {
        if (code > 0) between();
        cell(*columnOfCode(code));
    }
}

}  // namespace

std::string tabbedText(std::span<const int> numbers, TemperatureUnit unit) {
    std::string text;
    const auto tab = [&] { text += '\t'; };
    eachColumn([&](Column column) { text += heading(column, unit); }, tab);
    text += '\n';
    for (const int number : numbers) {
        const Element& element = *findElement(number);
        eachColumn([&](Column column) { text += cellText(element, column, unit); }, tab);
        text += '\n';
    }
    return text;
}

std::string htmlTable(std::span<const int> numbers, TemperatureUnit unit) {
    std::string html = "<table border=\"1\" cellspacing=\"0\">\n<tr>";
    const auto nothing = [] {};
    eachColumn([&](Column column) { html += "<th>" + heading(column, unit) + "</th>"; }, nothing);
    html += "</tr>\n";
    for (const int number : numbers) {
        const Element& element = *findElement(number);
        html += "<tr>";
        eachColumn(
            [&](Column column) {
                html += isText(column) ? "<td>" : "<td align=\"right\">";
                html += cellText(element, column, unit) + "</td>";
            },
            nothing);
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

}  // namespace controls::dataanalyser
