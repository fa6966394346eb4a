#include "formats/DataSetFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>

#include "platform/text/Trimmed.h"

namespace formats {

namespace {

using platform::trimmed;

constexpr std::string_view headEnd = "---";

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(end + 1)) {
        end = text.find(separator);
        parts.push_back(trimmed(text.substr(0, end)));
        if (end == std::string_view::npos) break;
    }
    return parts;
}

/// Goes through the lines of a text.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}

    bool next() {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find('\n');
        ended_ = end != std::string_view::npos;
        line_ = rest_.substr(0, end);
        if (line_.ends_with('\r')) line_.remove_suffix(1);
        rest_.remove_prefix(ended_ ? end + 1 : rest_.size());
        ++number_;
        return true;
    }
    std::string_view line() const { return line_; }
    int number() const { return number_; }
    /// Whether the line is complete: it ends in LF, and not where the text ends.
    bool ended() const { return ended_; }
    bool isComment() const { return trimmed(line_).empty() || line_.starts_with('#'); }

  private:
    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;
    bool ended_ = true;
};

std::optional<int> parseWhole(std::string_view text, int most) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 1 || value > most) return {};
    return value;
}

std::optional<DataColumnKind> kindOf(std::string_view word) {
    constexpr std::array<std::pair<std::string_view, DataColumnKind>, 4> kinds{
        {{"text", DataColumnKind::text},
         {"formula", DataColumnKind::formula},
         {"category", DataColumnKind::category},
         {"number", DataColumnKind::number}}};
    const auto* const found =
        std::ranges::find(kinds, word, &std::pair<std::string_view, DataColumnKind>::first);
    return found == kinds.end() ? std::nullopt : std::optional(found->second);
}

class Decoder {
  public:
    explicit Decoder(std::string_view text) : lines_(text) {}

    DecodedDataSet run() {
        if (readHead()) {
            while (lines_.next()) readRow();
            decoded_.set = std::move(set_);
        }
        return std::move(decoded_);
    }

  private:
    bool readHead() {
        while (lines_.next()) {
            if (lines_.isComment()) continue;
            if (trimmed(lines_.line()) == headEnd) return headIsComplete();
            if (!readField()) fault(DataSetFault::field);
        }
        fault(DataSetFault::incomplete);
        return false;
    }

    bool headIsComplete() {
        const bool hasNumbers = std::ranges::any_of(set_.columns, &DataColumn::isNumber);
        const bool hasNames = !set_.columns.empty() && !set_.columns.front().isNumber();
        if (set_.number == 0 || set_.title.empty() || !hasNumbers || !hasNames || !graphIsOfNumbers()) {
            fault(DataSetFault::incomplete);
        }
        return decoded_.faults.empty();
    }

    bool graphIsOfNumbers() const {
        const auto isNumber = [this](std::size_t column) {
            return column < set_.columns.size() && set_.columns[column].isNumber();
        };
        return !set_.graph || (isNumber(set_.graph->first) && isNumber(set_.graph->second));
    }

    bool readField() {
        const std::size_t colon = lines_.line().find(':');
        if (colon == std::string_view::npos) return false;
        const std::string_view name = trimmed(lines_.line().substr(0, colon));
        const std::string_view value = trimmed(lines_.line().substr(colon + 1));
        if (name == "number") return readNumber(value);
        if (name == "title") return readText(value, set_.title);
        if (name == "source") return readText(value, set_.source);
        if (name == "column") return readColumn(split(value, '|'));
        return name == "graph" && readGraph(value);
    }

    bool readNumber(std::string_view value) {
        const auto number = parseWhole(value, std::numeric_limits<std::int16_t>::max());
        set_.number = static_cast<std::int16_t>(number.value_or(0));
        return number.has_value();
    }

    static bool readText(std::string_view value, std::string& text) {
        text = value;
        return !value.empty();
    }

    bool readColumn(std::span<const std::string_view> parts) {
        if (parts.size() < 2 || parts.size() > 3 || parts[1].empty()) return false;
        const auto kind = kindOf(parts[0]);
        const bool hasUnit = parts.size() == 3;
        if (!kind || set_.columns.size() == DataSet::maxColumns) return false;
        if (hasUnit && *kind != DataColumnKind::number) return false;
        set_.columns.push_back(
            {*kind, std::string(parts[1]), std::string(hasUnit ? parts[2] : std::string_view()), {}, {}});
        return true;
    }

    bool readGraph(std::string_view value) {
        const std::size_t blank = value.find(' ');
        if (blank == std::string_view::npos) return false;
        const auto x = parseWhole(value.substr(0, blank), DataSet::maxColumns);
        const auto y = parseWhole(trimmed(value.substr(blank)), DataSet::maxColumns);
        if (!x || !y) return false;
        set_.graph = {static_cast<std::size_t>(*x - 1), static_cast<std::size_t>(*y - 1)};
        return true;
    }

    void readRow() {
        if (lines_.isComment()) return;
        ++place_;
        const auto cells = split(lines_.line(), '\t');
        const std::string_view name = cells.front();
        if (!lines_.ended()) return fault(DataSetFault::cutShort, name);
        if (cells.size() != set_.columns.size()) return fault(DataSetFault::cellCount, name);
        if (place_ > DataSet::maxRows) return fault(DataSetFault::tooManyRows, name);
        if (!readFigures(cells)) return fault(DataSetFault::notANumber, name);
        addRow(cells);
    }

    /// Checks the whole row before anything of it is stored.
    bool readFigures(std::span<const std::string_view> cells) {
        figures_.assign(cells.size(), std::numeric_limits<double>::quiet_NaN());
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (!set_.columns[i].isNumber() || cells[i].empty()) continue;
            const auto figure = parseFigure(cells[i]);
            if (!figure) return false;
            figures_[i] = *figure;
        }
        return true;
    }

    void addRow(std::span<const std::string_view> cells) {
        set_.rowIds.push_back(static_cast<std::int16_t>(place_));
        for (std::size_t i = 0; i < cells.size(); ++i) {
            DataColumn& column = set_.columns[i];
            column.cells.emplace_back(cells[i]);
            if (!column.isNumber()) continue;
            std::ranges::replace(column.cells.back(), '.', ',');
            column.values.push_back(figures_[i]);
        }
    }

    void fault(DataSetFault what, std::string_view name = {}) {
        decoded_.faults.push_back({lines_.number(), what, std::string(name)});
    }

    Lines lines_;
    DataSet set_;
    DecodedDataSet decoded_;
    std::vector<double> figures_;
    std::size_t place_ = 0;
};

}  // namespace

std::optional<double> parseFigure(std::string_view text) {
    constexpr std::size_t maxLength = 40;
    if (text.empty() || text.size() > maxLength) return std::nullopt;
    std::string digits(text);
    std::ranges::replace(digits, ',', '.');
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value)) return {};
    return value;
}

DecodedDataSet decodeDataSet(std::string_view text) { return Decoder(text).run(); }

}  // namespace formats
