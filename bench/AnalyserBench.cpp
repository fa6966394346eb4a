#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QScrollBar>
#include <random>
#include <string>

#include "bench/Required.h"
#include "controls/dataanalyser/AnalyserComponent.h"
#include "controls/dataanalyser/graph/LinkedGraphParts.h"
#include "controls/dataanalyser/table/TableView.h"
#include "formats/DataSetFile.h"

/// The data analyser with a data set of 10,000 rows.
namespace {

using namespace controls::dataanalyser;

constexpr int rowCount = 10000;

DataLibrary largeLibrary() {
    std::string text =
        "number: 1\ntitle: T\ncolumn: text | N\ncolumn: category | C\ncolumn: number | A\ncolumn: number | "
        "B\n---\n";
    std::mt19937 random(1);
    std::uniform_real_distribution<double> values(1, 1000);
    for (int i = 0; i < rowCount; ++i) {
        text += "name" + std::to_string(random() % 100000) + "\tgroup" + std::to_string(i % 7) + '\t' +
                std::to_string(values(random)) + '\t' + std::to_string(values(random)) + '\n';
    }
    return DataLibrary(bench::required(formats::decodeDataSet(text).set));
}

/// The pane of an analyser that shows the large data set.
struct Shown {
    Shown() {
        analyser.setDataSet(1);
        pane.resize(1016, 640);
        pane.show();
        settle();
    }
    void settle() {
        pane.refreshNow();
        QCoreApplication::processEvents();
        pane.grab();
    }
    Analyser analyser{largeLibrary};
    AnalyserPane pane{analyser, linkedGraphParts, nullptr};
};

void SortOf10000Rows(benchmark::State& state) {
    Shown shown;
    if (shown.analyser.rows().size() != rowCount) return state.SkipWithError("the rows are not there");
    bool descending = false;
    for (auto _ : state) {
        shown.analyser.setSortColumn(static_cast<std::int16_t>(state.range(0)));
        shown.analyser.setDescending(descending = !descending);
        shown.settle();
    }
}
// By words, and by numbers; each with the painting of the table.
BENCHMARK(SortOf10000Rows)->Arg(0)->Arg(2)->Unit(benchmark::kMillisecond);

void ScrollByAPageIn10000Rows(benchmark::State& state) {
    Shown shown;
    QScrollBar* bar = shown.pane.findChild<QTableView*>()->verticalScrollBar();
    for (auto _ : state) {
        bar->setValue(bar->value() == bar->maximum() ? 0 : bar->value() + bar->pageStep());
        shown.pane.grab();
    }
}
BENCHMARK(ScrollByAPageIn10000Rows)->Unit(benchmark::kMillisecond);

void ScatterPlotOf10000Points(benchmark::State& state) {
    Shown shown;
    for (auto _ : state) {
        shown.analyser.setGraphShown(true);
        shown.settle();
        state.PauseTiming();
        shown.analyser.setGraphShown(false);
        shown.settle();
        state.ResumeTiming();
    }
}
BENCHMARK(ScatterPlotOf10000Points)->Unit(benchmark::kMillisecond);

/// What a start of the program pays for the component that it does not show yet.
void CreationOfTheAnalyser(benchmark::State& state) {
    QWidget parent;
    for (auto _ : state) {
        Analyser analyser(largeLibrary);
        const AnalyserPane pane(analyser, linkedGraphParts, &parent);
        benchmark::DoNotOptimize(&pane);
    }
}
BENCHMARK(CreationOfTheAnalyser)->Unit(benchmark::kMicrosecond);

}  // namespace
