#include <benchmark/benchmark.h>

#include <QApplication>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    // The programs measured inherit it: windows without a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What is measured several times takes turns, so that a while in which the machine is slower hits all
    // sides of a comparison. What is said on the command line comes later and wins.
    std::string turns = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, turns.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;
    // Widgets need it. It is not static, since it must be destroyed before the static objects of the
    // libraries.
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
