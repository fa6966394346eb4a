#include "controls/dataanalyser/model/Graph.h"

#include <algorithm>
#include <cmath>

#include "controls/dataanalyser/model/Histogram.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

namespace {

using namespace platform::literals;

constexpr double halfBarWidth = 0.4;

class GraphMaker {
  public:
    GraphMaker(const formats::DataSet& set, const Categories& categories, std::span<const int> rows,
               const GraphPlan& plan, TemperatureUnit unit)
        : set_(set), categories_(categories), rows_(rows), unit_(unit) {
        graph_.plan = plan;
    }

    Graph run() {
        if (plan().kind == GraphKind::histogram) {
            addBins();
        } else {
            addRows();
        }
        if (plan().kind == GraphKind::line) std::ranges::stable_sort(graph_.marks, {}, &GraphMark::x);
        setWindow();
        setTitles();
        if (plan().bestFit && plan().hasPoints()) fitLine();
        return std::move(graph_);
    }

  private:
    const GraphPlan& plan() const { return graph_.plan; }
    const formats::DataColumn& xColumn() const { return set_.columns[plan().x]; }
    const formats::DataColumn& yColumn() const { return set_.columns[plan().y]; }

    static bool canShow(double value, bool logarithmic) {
        return std::isfinite(value) && (!logarithmic || value > 0);
    }

    void addRows() {
        for (const int row : rows_) {
            const auto place = static_cast<std::size_t>(row);
            const bool bar = plan().kind == GraphKind::bar;
            const double y = cellValue(yColumn(), place, unit_);
            const double x =
                bar ? static_cast<double>(graph_.marks.size()) : cellValue(xColumn(), place, unit_);
            if (!canShow(x, plan().xIsLogarithmic()) || !canShow(y, plan().logY)) {
                ++graph_.leftOut;
                continue;
            }
            graph_.marks.push_back({x, y, x - halfBarWidth, x + halfBarWidth, row, categories_.ofRow[place]});
        }
    }

    void addBins() {
        std::vector<double> values;
        for (const int row : rows_) {
            const double value = cellValue(xColumn(), static_cast<std::size_t>(row), unit_);
            if (canShow(value, plan().logX)) values.push_back(value);
        }
        graph_.leftOut = static_cast<int>(rows_.size() - values.size());
        for (const HistogramBin& bin : histogram(values, plan().logX)) {
            if (plan().logY && bin.count == 0) continue;
            graph_.marks.push_back({bin.from, static_cast<double>(bin.count), bin.from, bin.to, -1, -1});
        }
    }

    void setWindow() {
        std::vector<double> xs;
        std::vector<double> ys;
        for (const GraphMark& mark : graph_.marks) {
            xs.push_back(plan().hasPoints() ? mark.x : mark.left);
            if (!plan().hasPoints()) xs.push_back(mark.right);
            ys.push_back(mark.y);
        }
        // Bars begin at zero. On a logarithmic axis half the shortest bar is added, so that a decade lies
        // below it.
        if (!plan().hasPoints()) {
            ys.push_back(plan().logY ? 0.5 * (ys.empty() ? 1 : *std::ranges::min_element(ys)) : 0);
        }
        graph_.whole = {rangeOf(xs, plan().xIsLogarithmic()), rangeOf(ys, plan().logY)};
    }

    void setTitles() {
        graph_.xTitle =
            plan().kind == GraphKind::bar ? set_.columns[nameColumn()].title : heading(xColumn(), unit_);
        graph_.yTitle =
            plan().kind == GraphKind::histogram ? std::string("Πλήθος"_gr) : heading(yColumn(), unit_);
    }

    std::size_t nameColumn() const {
        const auto words =
            std::ranges::find_if(set_.columns, [](const auto& column) { return !column.isNumber(); });
        return static_cast<std::size_t>(words - set_.columns.begin());
    }

    void fitLine() {
        std::vector<PlanePoint> points;
        for (const GraphMark& mark : graph_.marks) {
            points.push_back(
                {plan().logX ? std::log10(mark.x) : mark.x, plan().logY ? std::log10(mark.y) : mark.y});
        }
        graph_.fit = bestFit(points);
    }

    const formats::DataSet& set_;
    const Categories& categories_;
    std::span<const int> rows_;
    TemperatureUnit unit_;
    Graph graph_;
};

}  // namespace

double Graph::fitted(double x) const {
    if (!fit) return std::numeric_limits<double>::quiet_NaN();
    const double y = fit->slope * (plan.logX ? std::log10(x) : x) + fit->intercept;
    return plan.logY ? std::pow(10, y) : y;
}

std::set<int> Graph::categories() const {
    std::set<int> present;
    for (const GraphMark& mark : marks) present.insert(mark.category);
    present.erase(-1);
    return present;
}

Graph makeGraph(const formats::DataSet& set, const Categories& categories, std::span<const int> rows,
                const GraphPlan& plan, TemperatureUnit unit) {
    return GraphMaker(set, categories, rows, plan, unit).run();
}

}  // namespace controls::dataanalyser
