#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char** argv) {
    // The programs measured inherit it: windows without a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    // Widgets need it, and it has to go before the libraries' own objects do, so it is no static one.
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
