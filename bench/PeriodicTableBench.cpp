#include <benchmark/benchmark.h>

#include <QImage>
#include <string>

#include "bench/Required.h"
#include "controls/common/QtText.h"
#include "controls/periodic/PeriodicWidget.h"

/// Drawing the whole periodic table at 1920 × 1080 with an element on its card, and what its creation adds to
/// the start of the program.
namespace {

using namespace controls::periodic;

void RedrawOfPeriodicTable(benchmark::State& state) {
    TableState shown;
    shown.view = bench::required(viewOfCode(static_cast<int>(state.range(0))));
    shown.selected = 92;
    PeriodicWidget table([](int) {}, nullptr);
    table.resize(1920, 1080);
    table.setState(shown);
    table.show();
    QImage picture(table.size() * static_cast<int>(state.range(1)), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(static_cast<double>(state.range(1)));
    for (auto _ : state) table.render(&picture);
    state.SetLabel(controls::toQt(viewName(shown.view)).toStdString());
}
BENCHMARK(RedrawOfPeriodicTable)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"view", "pixelRatio"})
    ->Args({viewCode(controls::periodic::TableView::families), 1})
    ->Args({viewCode(controls::periodic::TableView::matter), 1})
    ->Args({viewCode(controls::periodic::TableView::density), 1})
    ->Args({viewCode(controls::periodic::TableView::discovery), 1})
    ->Args({viewCode(controls::periodic::TableView::families), 2});

void CreationOfPeriodicTable(benchmark::State& state) {
    for (auto _ : state) {
        const PeriodicWidget table([](int) {}, nullptr);
        benchmark::DoNotOptimize(table.state());
    }
}
BENCHMARK(CreationOfPeriodicTable)->Unit(benchmark::kMicrosecond);

}  // namespace
