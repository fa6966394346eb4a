#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "controls/dataanalyser/model/AnalyserState.h"
#include "controls/dataanalyser/model/DataLibrary.h"
#include "controls/dataanalyser/model/RowOrder.h"

namespace controls::dataanalyser {

/// What has changed in the analyser.
enum class Change : std::uint8_t { dataSet, rows, unit, columns, selection, top, view, graph };

/// The analyser without its windows: the data sets, which are read when they are first asked for, and the
/// state. Rows are named by id here.
class Analyser {
  public:
    /// @param openLibrary reads the data sets, once and late.
    explicit Analyser(std::function<DataLibrary()> openLibrary) : openLibrary_(std::move(openLibrary)) {}

    /// Is told of every change. There is one listener.
    void setListener(std::function<void(Change)> listener) { listener_ = std::move(listener); }

    const DataLibrary& library() const;
    const formats::DataSet& dataSet() const;
    const Categories& categories() const;
    /// The rows listed, from the top, by their places in the set.
    const std::vector<int>& rows() const;
    /// The place of a row in the set, −1 when it has none of this id.
    int placeOf(std::int32_t id) const;
    std::int16_t idAt(int place) const { return dataSet().rowIds[static_cast<std::size_t>(place)]; }

    /// Chooses a data set (the elements for an unknown number) and forgets what was chosen in the last one,
    /// but for the order of its rows.
    void setDataSet(std::int16_t number);
    /// The order of the rows, from whatever was put.
    RowOrder order() const;
    void setSortColumn(std::int16_t column);
    void setDescending(bool descending);
    void setCategory(std::int32_t category);

    TemperatureUnit unit() const { return state_.unit; }
    void setUnit(TemperatureUnit unit);

    ColumnLayout layout() const;
    void setLayout(const ColumnLayout& layout);

    /// The selected rows that are listed, in their order.
    std::vector<std::int16_t> selected() const;
    void setSelected(std::vector<std::int16_t> ids);
    /// What a view tells of itself, which is no change for it.
    void noteCursor(std::int16_t id) { state_.set.cursor = id; }
    void noteTop(std::int16_t id) { state_.set.top = id; }
    std::int32_t cursor() const { return placeOf(state_.set.cursor) < 0 ? 0 : state_.set.cursor; }
    void setCursor(std::int32_t id);
    std::int16_t top() const { return placeOf(state_.set.top) < 0 ? std::int16_t{0} : state_.set.top; }
    void setTop(std::int16_t id);

    bool graphShown() const { return state_.graphShown; }
    void setGraphShown(bool shown);
    GraphPlan plan() const;
    void setPlan(const GraphPlan& plan);
    /// A kind code that no graph has is that of the scatter graph.
    void setGraphKind(int code);
    Graph graph() const;
    /// The part of the graph on show; the whole one unless the reader has zoomed in.
    GraphWindow window(const Graph& graph) const;
    void setWindow(const std::optional<GraphWindow>& window);

    /// @name Entries of the state, each named by a word: the width and presence of a column by its place, and
    /// what the graph shows (README.md).
    /// @{
    std::vector<std::int32_t> entryWords() const;
    std::int32_t entry(std::int32_t word) const;
    /// A word without meaning here does nothing; a value without meaning is the default.
    void setEntry(std::int32_t word, std::int32_t value);
    /// All entries as they are when a data set has just been chosen.
    void clearEntries();
    /// @}

  private:
    void changed(Change change) const;
    void forgetRows() const { rows_.reset(); }
    std::size_t graphColumn(std::int32_t put, bool second) const;

    std::function<DataLibrary()> openLibrary_;
    std::function<void(Change)> listener_;
    AnalyserState state_;
    // What follows from the state and the data, kept until either changes.
    mutable std::optional<DataLibrary> library_;
    mutable std::optional<Categories> categories_;
    mutable std::optional<std::vector<int>> rows_;
};

}  // namespace controls::dataanalyser
