#include "tools/elementc/SourceTable.h"

#include <algorithm>
#include <charconv>

namespace elementc {

namespace {

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        parts.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

Record rowOf(const std::vector<std::string>& names, const std::vector<std::string>& cells) {
    Record row;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (cells[i] != "-") row.emplace(names[i], cells[i]);
    }
    return row;
}

}  // namespace

Result<std::vector<SourceRow>> readTable(std::string_view text, const std::string& file) {
    std::vector<SourceRow> rows;
    std::vector<std::string> names;
    int number = 0;
    for (const std::string& line : split(text, '\n')) {
        ++number;
        if (line.empty() || line.front() == '#') continue;
        const std::string place = file + ':' + std::to_string(number);
        const std::vector<std::string> cells = split(line, '\t');
        if (names.empty()) {
            names = cells;
        } else if (cells.size() != names.size()) {
            return Failure{place + ": " + std::to_string(cells.size()) + " cells under " +
                           std::to_string(names.size()) + " names"};
        } else {
            rows.push_back({rowOf(names, cells), place});
        }
    }
    return rows;
}

int numberOf(const Record& record) {
    const std::string_view text = field(record, "number");
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && number >= 1 && number <= elementCount ? number : 0;
}

}  // namespace elementc
