#include "controls/dataanalyser/model/TableText.h"

namespace controls::dataanalyser {

namespace {

std::string escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        if (c == '&') {
            html += "&amp;";
        } else if (c == '<') {
            html += "&lt;";
        } else {
            html += c;
        }
    }
    return html;
}

std::string htmlRow(const CopiedTable& table, std::size_t row) {
    std::string html = "<tr>";
    for (const std::size_t i : table.columns) {
        const formats::DataColumn& column = table.set.columns[i];
        html += column.isNumber() ? "<td align=\"right\">" : "<td>";
        html += escaped(cellText(column, row, table.unit)) + "</td>";
    }
    return html + "</tr>\n";
}

}  // namespace

std::string tabbedText(const CopiedTable& table) {
    std::string text;
    const auto endCell = [&](std::size_t column) { text += column == table.columns.back() ? '\n' : '\t'; };
    for (const std::size_t column : table.columns) {
        text += heading(table.set.columns[column], table.unit);
        endCell(column);
    }
    for (const int row : table.rows) {
        for (const std::size_t column : table.columns) {
            text += cellText(table.set.columns[column], static_cast<std::size_t>(row), table.unit);
            endCell(column);
        }
    }
    return text;
}

std::string htmlTable(const CopiedTable& table) {
    std::string html = "<table border=\"1\" cellspacing=\"0\">\n<tr>";
    for (const std::size_t column : table.columns) {
        html += "<th>" + escaped(heading(table.set.columns[column], table.unit)) + "</th>";
    }
    html += "</tr>\n";
    for (const int row : table.rows) html += htmlRow(table, static_cast<std::size_t>(row));
    return html + "</table>\n";
}

}  // namespace controls::dataanalyser
