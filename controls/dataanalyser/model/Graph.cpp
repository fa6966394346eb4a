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
               const RowOrder& order, const GraphPlan& plan, TemperatureUnit unit)
        : set_(set), categories_(categories), rows_(rows), order_(order), unit_(unit) {
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
            if (!canShow(x, plan().acrossIsLogarithmic()) || !canShow(y, plan().upIsLogarithmic())) {
                ++graph_.leftOut;
                continue;
            }
            graph_.marks.push_back({x, y, x - halfBarWidth, x + halfBarWidth, row, categories_.ofRow[place]});
        }
    }

    void addBins() {
        std::vector<double> values;
        for (const int row : rows_) {
            const double value = cellValue(yColumn(), static_cast<std::size_t>(row), unit_);
            if (canShow(value, plan().logY)) values.push_back(value);
        }
        graph_.leftOut = static_cast<int>(rows_.size() - values.size());
        for (const HistogramBin& bin : histogram(values, plan().logY)) {
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
            const bool log = plan().upIsLogarithmic();
            ys.push_back(log ? 0.5 * (ys.empty() ? 1 : *std::ranges::min_element(ys)) : 0);
        }
        graph_.whole = {rangeOf(xs, plan().acrossIsLogarithmic()), rangeOf(ys, plan().upIsLogarithmic())};
    }

    void setTitles() {
        const bool counts = plan().kind == GraphKind::histogram;
        if (plan().hasPoints()) graph_.xTitle = heading(xColumn(), unit_);
        if (plan().kind == GraphKind::bar) graph_.xTitle = orderWords(set_, order_);
        if (counts) graph_.xTitle = heading(yColumn(), unit_);
        graph_.yTitle = counts ? std::string("Πλήθος"_gr) : heading(yColumn(), unit_);
    }

    void fitLine() {
        std::vector<PlanePoint> points;
        points.reserve(graph_.marks.size());
        for (const GraphMark& mark : graph_.marks) {
            points.push_back(
                {plan().logX ? std::log10(mark.x) : mark.x, plan().logY ? std::log10(mark.y) : mark.y});
        }
        graph_.fit = bestFit(points);
    }

    const formats::DataSet& set_;
    const Categories& categories_;
    std::span<const int> rows_;
    const RowOrder& order_;
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
                const RowOrder& order, const GraphPlan& plan, TemperatureUnit unit) {
    return GraphMaker(set, categories, rows, order, plan, unit).run();
}

}  // namespace controls::dataanalyser
