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

/// The analyser without its windows: the data sets and the state. Rows are identified by their ids.
class Analyser {
  public:
    /// `openLibrary` reads the data sets. It is called once, when something of them is first needed.
    explicit Analyser(std::function<DataLibrary()> openLibrary) : openLibrary_(std::move(openLibrary)) {}

    /// Sets the one listener that is told of every change.
    void setListener(std::function<void(Change)> listener) { listener_ = std::move(listener); }

    const DataLibrary& library() const;
    const formats::DataSet& dataSet() const;
    const Categories& categories() const;
    /// The rows that the table lists, from the top, by their places in the data set.
    const std::vector<int>& rows() const;
    /// The place of a row in the data set, −1 when there is no row with this id.
    int placeOf(std::int32_t id) const;
    std::int16_t idAt(int place) const { return dataSet().rowIds[static_cast<std::size_t>(place)]; }

    /// Chooses a data set (the elements for an unknown number). All choices made in the former data set are
    /// forgotten, except the order of the rows.
    void setDataSet(std::int16_t number);
    /// The order of the rows. A column or category that the data set lacks counts as none.
    RowOrder order() const;
    void setSortColumn(std::int16_t column);
    void setDescending(bool descending);
    void setCategory(std::int32_t category);
    /// Lists only the rows from one id to another, in the order of the data set; 0 for no bound. When the
    /// first lies behind the last, no row is listed.
    void setRange(std::int32_t first, std::int32_t last);

    TemperatureUnit unit() const { return state_.unit; }
    void setUnit(TemperatureUnit unit);

    ColumnLayout layout() const;
    void setLayout(const ColumnLayout& layout);

    /// The selected rows among those listed, from the top.
    std::vector<std::int16_t> selected() const;
    void setSelected(std::vector<std::int16_t> ids);
    /// Notes where a view has moved its cursor or its topmost row. The listener is not told.
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
    /// An unknown code sets the scatter graph.
    void setGraphKind(int code);
    Graph graph() const;
    /// The part of the graph that is shown: the whole graph, unless the reader has zoomed in.
    GraphWindow window(const Graph& graph) const;
    void setWindow(const std::optional<GraphWindow>& window);

    /// @name Entries of the state. A word names each of them: the place of a column names its width and
    /// whether it is shown, and the words in AnalyserState.h name the category and what the graph shows (see
    /// README.md).
    /// @{
    std::vector<std::int32_t> entryWords() const;
    std::int32_t entry(std::int32_t word) const;
    /// An unknown word changes nothing. A value without meaning sets the default.
    void setEntry(std::int32_t word, std::int32_t value);
    /// Sets all entries to their values in a data set that has just been chosen.
    void clearEntries();
    /// @}

  private:
    void changed(Change change) const;
    void forgetRows() const { rows_.reset(); }
    std::size_t graphColumn(std::int32_t chosen, bool second) const;

    std::function<DataLibrary()> openLibrary_;
    std::function<void(Change)> listener_;
    AnalyserState state_;
    // Computed from state and data, and kept until one of them changes.
    mutable std::optional<DataLibrary> library_;
    mutable std::optional<Categories> categories_;
    mutable std::optional<std::vector<int>> rows_;
};

}  // namespace controls::dataanalyser
