#include <bit>

#include "controls/dataanalyser/model/Analyser.h"
#include "controls/dataanalyser/model/AnalyserState.h"

namespace controls::dataanalyser {

namespace {

constexpr std::int32_t logXBit = 1;
constexpr std::int32_t logYBit = 2;
constexpr std::int32_t bestFitBit = 4;
constexpr std::int32_t namesBit = 8;
constexpr std::int32_t hiddenBit = 0x10000;

std::int32_t columnEntry(const ColumnLayout& layout, std::size_t column) {
    return layout.width(column) | (layout.shown(column) ? 0 : hiddenBit);
}

/// The place of a window's number in the state, −1 for another word.
int windowPlace(std::int32_t word) {
    return word >= windowLeftWord && word <= windowTopWord ? word - windowLeftWord : -1;
}

void setGraphOptions(DataSetState& set, std::int32_t bits) {
    set.logX = (bits & logXBit) != 0;
    set.logY = (bits & logYBit) != 0;
    set.bestFit = (bits & bestFitBit) != 0;
    set.names = (bits & namesBit) != 0;
}

}  // namespace

std::vector<std::int32_t> Analyser::entryWords() const {
    std::vector<std::int32_t> words(dataSet().columns.size());
    for (std::size_t column = 0; column < words.size(); ++column)
        words[column] = static_cast<std::int32_t>(column);
    words.insert(words.end(), {categoryWord, graphXWord, graphYWord, graphOptionsWord, windowLeftWord,
                               windowRightWord, windowBottomWord, windowTopWord, firstRowWord, lastRowWord});
    return words;
}

std::int32_t Analyser::entry(std::int32_t word) const {
    const DataSetState& set = state_.set;
    if (word >= 0 && static_cast<std::size_t>(word) < layout().count()) {
        return columnEntry(layout(), static_cast<std::size_t>(word));
    }
    if (const int place = windowPlace(word); place >= 0) {
        return std::bit_cast<std::int32_t>(set.window[static_cast<std::size_t>(place)]);
    }
    switch (word) {
        case categoryWord:
            return order().category;
        case graphXWord:
            return static_cast<std::int32_t>(plan().x);
        case graphYWord:
            return static_cast<std::int32_t>(plan().y);
        case graphOptionsWord:
            return (set.logX ? logXBit : 0) | (set.logY ? logYBit : 0) | (set.bestFit ? bestFitBit : 0) |
                   (set.names ? namesBit : 0);
        case firstRowWord:
            return placeOf(set.firstRow) < 0 ? 0 : set.firstRow;
        case lastRowWord:
            return placeOf(set.lastRow) < 0 ? 0 : set.lastRow;
        default:
            return 0;
    }
}

void Analyser::setEntry(std::int32_t word, std::int32_t value) {
    DataSetState& set = state_.set;
    if (const auto column = static_cast<std::size_t>(word); word >= 0 && column < layout().count()) {
        ColumnLayout next = layout();
        next.setWidth(column, value & ~hiddenBit);
        next.setShown(column, (value & hiddenBit) == 0);
        return setLayout(next);
    }
    if (const int place = windowPlace(word); place >= 0) {
        set.window[static_cast<std::size_t>(place)] = std::bit_cast<float>(value);
        return changed(Change::graph);
    }
    switch (word) {
        case categoryWord:
            return setCategory(value);
        case graphXWord:
            set.graphX = value;
            break;
        case graphYWord:
            set.graphY = value;
            break;
        case graphOptionsWord:
            setGraphOptions(set, value);
            break;
        case firstRowWord:
        case lastRowWord:
            // A host sets these after the part of the graph on show, which is kept.
            (word == firstRowWord ? set.firstRow : set.lastRow) = value;
            forgetRows();
            return changed(Change::rows);
        default:
            return;
    }
    changed(Change::graph);
}

void Analyser::clearEntries() {
    DataSetState cleared;
    cleared.selected = std::move(state_.set.selected);
    cleared.cursor = state_.set.cursor;
    cleared.top = state_.set.top;
    state_.set = std::move(cleared);
    forgetRows();
    changed(Change::rows);
    changed(Change::columns);
    changed(Change::graph);
}

}  // namespace controls::dataanalyser
