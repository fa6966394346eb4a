#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/model/BestFit.h"
#include "controls/dataanalyser/model/ColumnLayout.h"
#include "controls/dataanalyser/model/ElementSet.h"
#include "controls/dataanalyser/model/Graph.h"
#include "controls/dataanalyser/model/Histogram.h"
#include "controls/dataanalyser/model/RowNames.h"
#include "controls/dataanalyser/model/RowOrder.h"
#include "controls/dataanalyser/model/TableText.h"
#include "controls/elements/NumberText.h"
#include "formats/DataSetFile.h"
#include "platform/text/CodePage1253.h"

namespace controls::dataanalyser {
namespace {

formats::DataSet sample() {
    return *formats::decodeDataSet(
                platform::fromUtf8("number: 1\ntitle: T\ncolumn: text | Ν\ncolumn: category | Κ\n"
                                   "column: number | Α | K\ncolumn: number | Β\n---\n"
                                   "ωμέγα\tx\t300\t10\nάλφα\ty\t\t100\nβήτα\tx\t273.15\t-1\n"
                                   "Αλκή & <ζ>\ty\t100\t\n"))
                .set;
}

std::vector<int> ordered(const formats::DataSet& set, const RowOrder& order) {
    return orderedRows(set, categoriesOf(set), order);
}

using Rows = std::vector<int>;

TEST(AnalyserRows, AreSortedAndSelectedByCategory) {
    const auto set = sample();
    EXPECT_EQ(ordered(set, {}), (Rows{0, 1, 2, 3}));
    EXPECT_EQ(ordered(set, {0, false, 0}), (Rows{3, 1, 2, 0})) << "accents do not count";
    EXPECT_EQ(ordered(set, {0, true, 0}), (Rows{0, 2, 1, 3}));
    EXPECT_EQ(ordered(set, {2, false, 0}), (Rows{3, 2, 0, 1})) << "unknown last";
    EXPECT_EQ(ordered(set, {2, true, 0}), (Rows{0, 2, 3, 1})) << "unknown last";
    EXPECT_EQ(ordered(set, {3, false, 2}), (Rows{1, 3}));
}

TEST(AnalyserRows, AntiquityIsOlderThanAnyYear) {
    const auto set = elementSet();
    const auto rows = ordered(set, {10, false, 0});
    EXPECT_EQ(set.columns[10].cells[static_cast<std::size_t>(rows[0])], platform::fromUtf8("αρχαιότητα"));
    const Graph graph = makeGraph(set, categoriesOf(set), rows, {}, {GraphKind::histogram, 0, 10}, {});
    EXPECT_GT(graph.whole.x.from, 1000) << "but no year that a graph could show";
}

TEST(AnalyserRows, ElementsThatDoNotMeltAtOneAtmosphereAreTold) {
    const std::string source = platform::toUtf8(elementSet().source);
    EXPECT_TRUE(
        source.ends_with("(C, As: εξάχνωση αντί για βρασμό, τήξη υπό πίεση· He: τήξη υπό πίεση 25 atm· "
                         "ηλεκτρονιοσυγγένεια 0: το άτομο δεν συγκρατεί άλλο ηλεκτρόνιο)"))
        << source;
}

TEST(AnalyserRows, TypedCharactersFindThem) {
    const auto set = elementSet();
    const auto rows = ordered(set, {});
    EXPECT_EQ(findRowByStart(set, rows, "c"), 5) << "the symbol comes before all beginnings";
    EXPECT_EQ(findRowByStart(set, rows, platform::fromUtf8("χρυ")), 78);
    EXPECT_EQ(findRowByStart(set, rows, "%"), std::nullopt);
}

TEST(AnalyserText, CopiesHaveUnitsCommasAndNoMarkup) {
    const auto set = sample();
    const CopiedTable table{set, {0, 2}, {0, 1, 2}, TemperatureUnit::celsius};
    EXPECT_EQ(tabbedText(table), platform::fromUtf8("Ν\tΑ (°C)\nωμέγα\t27\nάλφα\t\nβήτα\t0,00\n"));
    EXPECT_NE(htmlTable({set, {0}, {3}, {}}).find(platform::fromUtf8("<td>Αλκή &amp; &lt;ζ></td>")),
              std::string::npos);
    EXPECT_EQ(shownFigures("-1,2E-09·x + 3E+10"), QStringLiteral("−1,2·10⁻⁹·x + 3·10¹⁰"));
    EXPECT_EQ(shownFormula("HSO4^-"), QStringLiteral("HSO₄⁻"));
}

TEST(AnalyserColumns, ShareTheSpace) {
    ColumnLayout layout(3);
    const int needed[] = {50, 100, 50};
    EXPECT_EQ(layout.spread(400, needed), (std::vector{100, 200, 100}));
    EXPECT_EQ(layout.spread(10, needed), (std::vector{50, 100, 50})) << "never narrower than needed";
    layout.setWidth(0, 150);
    layout.setShown(1, false);
    EXPECT_EQ(layout.spread(400, needed), (std::vector{150, 0, 250}));
    for (const int width : {-5, 23, 601}) {
        layout.setWidth(0, width);
        EXPECT_EQ(layout.width(0), ColumnLayout::automatic) << width;
    }
    layout.setShown(0, false);
    layout.setShown(2, false);
    EXPECT_EQ(layout.shownColumns(), std::vector<std::size_t>{2}) << "one column stays";
}

TEST(AnalyserGraph, BestFitOfKnownPoints) {
    const PlanePoint line[] = {{1, 3}, {2, 5}, {4, 9}};
    EXPECT_EQ(equation(*bestFit(line), false, false), platform::fromUtf8("y = 2·x + 1"));
    EXPECT_DOUBLE_EQ(bestFit(line)->rSquared, 1);
    const PlanePoint cloud[] = {{0, 0}, {1, 2}, {2, 1}, {3, 3}};
    EXPECT_NEAR(bestFit(cloud)->slope, 0.8, 1e-12);
    EXPECT_NEAR(bestFit(cloud)->rSquared, 0.64, 1e-12);
    const PlanePoint upright[] = {{1, 1}, {1, 2}};
    EXPECT_FALSE(bestFit(upright));
    EXPECT_FALSE(bestFit(std::span(line, 1)));
    EXPECT_EQ(equation({-0.5, -2.25, 0}, true, true), platform::fromUtf8("log y = -0,5·log x - 2,25"));
}

TEST(AnalyserGraph, RowsWithoutANumberForTheAxesAreCounted) {
    const auto set = sample();
    const auto rows = ordered(set, {});
    Graph graph =
        makeGraph(set, categoriesOf(set), rows, {}, {GraphKind::scatter, 2, 3}, TemperatureUnit::kelvin);
    EXPECT_EQ(graph.marks.size(), 2U);
    EXPECT_EQ(graph.leftOut, 2);
    EXPECT_EQ(graph.xTitle, platform::fromUtf8("Α (K)"));
    graph = makeGraph(set, categoriesOf(set), rows, {}, {GraphKind::scatter, 2, 3, false, true}, {});
    EXPECT_EQ(graph.leftOut, 3) << "a negative number has no logarithm";
    EXPECT_EQ(graph.whole.y, (AxisRange{10, 100, true}));
    graph = makeGraph(set, categoriesOf(set), rows, {}, {GraphKind::line, 2, 3}, TemperatureUnit::kelvin);
    EXPECT_LT(graph.marks[0].x, graph.marks[1].x);
    graph = makeGraph(set, categoriesOf(set), {}, {}, {GraphKind::bar, 2, 3}, {});
    EXPECT_TRUE(graph.whole.valid());
}

TEST(AnalyserGraph, HistogramCountsEachValueOnce) {
    std::vector<double> values(100);
    std::iota(values.begin(), values.end(), 0.0);
    const auto bins = histogram(values, false);
    ASSERT_EQ(bins.size(), 10U);
    for (const HistogramBin& bin : bins) EXPECT_EQ(bin.count, 10) << bin.from;
    const double alike[] = {7, 7, 7};
    ASSERT_EQ(histogram(alike, false).size(), 1U);
    EXPECT_EQ(histogram(alike, false)[0].count, 3);
    const double spread[] = {1e-5, 1, 1e5};
    int counted = 0;
    for (const HistogramBin& bin : histogram(spread, true)) counted += bin.count;
    EXPECT_EQ(counted, 3);
    EXPECT_TRUE(histogram({}, false).empty());
}

TEST(AnalyserGraph, TicksAreRoundAndNoMoreThanFit) {
    const std::tuple<double, int, double, int> linear[] = {
        {100, 10, 10, 0}, {101, 10, 20, 0}, {0.3, 10, 0.05, 2}, {4700, 7, 1000, 0}, {3, 0, 5, 0}};
    for (const auto& [span, parts, distance, decimals] : linear) {
        EXPECT_DOUBLE_EQ(tickDistance(span, parts), distance) << span;
        EXPECT_EQ(decimalsOfTick(distance), decimals) << distance;
    }
    EXPECT_EQ(decadesPerTick({0.1, 1e5, true}, 6), 1);
    EXPECT_EQ(decadesPerTick({1e-13, 1e6, true}, 6), 4);
    EXPECT_EQ(decadesPerTick({1, 10, true}, 0), 1);
}

TEST(AnalyserGraph, AxesZoomWithinTheWhole) {
    const AxisRange whole{0, 100, false};
    const AxisRange closer = zoomed(whole, 0.5, 0.25, whole);
    EXPECT_EQ(closer, (AxisRange{12.5, 62.5, false})) << "the place stays where it is";
    EXPECT_EQ(zoomed(closer, 10, 0.5, whole), whole);
    EXPECT_EQ(moved(closer, 5, whole), (AxisRange{50, 100, false}));
    const AxisRange decades{1, 1e4, true};
    EXPECT_NEAR(zoomed(decades, 0.5, 0, decades).to, 1e3, 1e-9);
    EXPECT_NEAR(zoomed(decades, 0.5, 1, decades).from, 10, 1e-9);
    EXPECT_EQ(zoomed(decades, 2, 1, decades), decades);
    EXPECT_DOUBLE_EQ(decades.place(100), 0.5);
    const double values[] = {3, 5, 3000};
    EXPECT_EQ(rangeOf(values, true), (AxisRange{1, 1e4, true}));
    const double same[] = {5};
    EXPECT_TRUE(rangeOf(same, false).valid());
    for (const AxisRange& wrong : {AxisRange{1, 1}, AxisRange{2, 1}, AxisRange{0, 1, true},
                                   AxisRange{0, 1e300}, AxisRange{NAN, 1}, AxisRange{0, INFINITY}}) {
        EXPECT_FALSE(wrong.valid());
    }
}

}  // namespace
}  // namespace controls::dataanalyser
