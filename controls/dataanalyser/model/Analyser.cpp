#include "controls/dataanalyser/model/Analyser.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace controls::dataanalyser {

namespace {

/// The n-th column of numbers, the first when there are not as many.
std::size_t numberColumn(const formats::DataSet& set, int n) {
    std::size_t first = set.columns.size();
    for (std::size_t column = 0; column < set.columns.size(); ++column) {
        if (!set.columns[column].isNumber()) continue;
        if (n-- == 0) return column;
        first = std::min(first, column);
    }
    return first;
}

}  // namespace

void Analyser::changed(Change change) const {
    if (listener_) listener_(change);
}

const DataLibrary& Analyser::library() const {
    if (!library_) library_ = openLibrary_();
    return *library_;
}

const formats::DataSet& Analyser::dataSet() const { return library().find(state_.dataSet); }

const Categories& Analyser::categories() const {
    if (!categories_) categories_ = categoriesOf(dataSet());
    return *categories_;
}

const std::vector<int>& Analyser::rows() const {
    if (!rows_) rows_ = orderedRows(dataSet(), categories(), order());
    return *rows_;
}

int Analyser::placeOf(std::int32_t id) const {
    const auto& ids = dataSet().rowIds;
    const auto found = std::ranges::lower_bound(ids, id);
    return found == ids.end() || *found != id ? -1 : static_cast<int>(found - ids.begin());
}

void Analyser::setDataSet(std::int16_t number) {
    state_.dataSet = library().find(number).number;
    state_.set = DataSetState();
    categories_.reset();
    forgetRows();
    changed(Change::dataSet);
}

RowOrder Analyser::order() const {
    RowOrder order{{}, state_.descending, 0};
    if (state_.sortColumn >= 0 && static_cast<std::size_t>(state_.sortColumn) < dataSet().columns.size()) {
        order.column = static_cast<std::size_t>(state_.sortColumn);
    }
    if (state_.set.category > 0 && state_.set.category <= static_cast<int>(categories().names.size())) {
        order.category = state_.set.category;
    }
    if (const int first = placeOf(state_.set.firstRow); first >= 0) order.first = first;
    if (const int last = placeOf(state_.set.lastRow); last >= 0) order.last = last;
    return order;
}

void Analyser::setSortColumn(std::int16_t column) {
    state_.sortColumn = column;
    forgetRows();
    changed(Change::rows);
}

void Analyser::setDescending(bool descending) {
    state_.descending = descending;
    forgetRows();
    changed(Change::rows);
}

void Analyser::setCategory(std::int32_t category) {
    state_.set.category = category;
    state_.set.window = {};
    forgetRows();
    changed(Change::rows);
}

void Analyser::setRange(std::int32_t first, std::int32_t last) {
    state_.set.firstRow = first;
    state_.set.lastRow = last;
    state_.set.window = {};
    forgetRows();
    changed(Change::rows);
}

void Analyser::setUnit(TemperatureUnit unit) {
    if (unit == state_.unit) return;
    state_.unit = unit;
    state_.set.window = {};
    changed(Change::unit);
}

ColumnLayout Analyser::layout() const {
    const std::size_t columns = dataSet().columns.size();
    // At first nothing has been set in a data set.
    return state_.set.layout.count() == columns ? state_.set.layout : ColumnLayout(columns);
}

void Analyser::setLayout(const ColumnLayout& layout) {
    state_.set.layout = layout;
    changed(Change::columns);
}

std::vector<std::int16_t> Analyser::selected() const {
    if (state_.set.selected.empty()) return {};
    const std::unordered_set<std::int16_t> chosen(state_.set.selected.begin(), state_.set.selected.end());
    std::vector<std::int16_t> ids;
    for (const int row : rows()) {
        if (chosen.contains(idAt(row))) ids.push_back(idAt(row));
    }
    return ids;
}

void Analyser::setSelected(std::vector<std::int16_t> ids) {
    state_.set.selected = std::move(ids);
    changed(Change::selection);
}

void Analyser::setCursor(std::int32_t id) {
    state_.set.cursor = id;
    changed(Change::selection);
}

void Analyser::setTop(std::int16_t id) {
    state_.set.top = id;
    changed(Change::top);
}

void Analyser::setGraphShown(bool shown) {
    state_.graphShown = shown;
    changed(Change::view);
}

std::size_t Analyser::graphColumn(std::int32_t chosen, bool second) const {
    const formats::DataSet& set = dataSet();
    const auto column = static_cast<std::size_t>(std::max(chosen, 0));
    if (chosen >= 0 && column < set.columns.size() && set.columns[column].isNumber()) return column;
    if (set.graph) return second ? set.graph->second : set.graph->first;
    return numberColumn(set, second ? 1 : 0);
}

GraphPlan Analyser::plan() const {
    const DataSetState& set = state_.set;
    return {state_.graphKind,
            graphColumn(set.graphX, false),
            graphColumn(set.graphY, true),
            set.logX,
            set.logY,
            set.bestFit,
            set.names};
}

void Analyser::setPlan(const GraphPlan& plan) {
    GraphPlan fitted = this->plan();
    fitted.bestFit = plan.bestFit;
    fitted.names = plan.names;
    if (plan != fitted) state_.set.window = {};
    state_.graphKind = plan.kind;
    state_.set.graphX = static_cast<std::int32_t>(plan.x);
    state_.set.graphY = static_cast<std::int32_t>(plan.y);
    state_.set.logX = plan.logX;
    state_.set.logY = plan.logY;
    state_.set.bestFit = plan.bestFit;
    state_.set.names = plan.names;
    changed(Change::graph);
}

void Analyser::setGraphKind(int code) {
    const bool known = code >= 0 && code < graphKindCount;
    state_.graphKind = known ? static_cast<GraphKind>(code) : GraphKind::scatter;
    state_.set.window = {};
    changed(Change::graph);
}

Graph Analyser::graph() const { return makeGraph(dataSet(), categories(), rows(), order(), plan(), unit()); }

GraphWindow Analyser::window(const Graph& graph) const {
    const auto& [left, right, bottom, top] = state_.set.window;
    const GraphWindow chosen{{left, right, graph.whole.x.logarithmic},
                             {bottom, top, graph.whole.y.logarithmic}};
    return chosen.valid() ? chosen : graph.whole;
}

void Analyser::setWindow(const std::optional<GraphWindow>& window) {
    state_.set.window = {};
    if (window) {
        state_.set.window = {static_cast<float>(window->x.from), static_cast<float>(window->x.to),
                             static_cast<float>(window->y.from), static_cast<float>(window->y.to)};
    }
    changed(Change::graph);
}

}  // namespace controls::dataanalyser
