#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

#include "bench/TestMachine.h"

/// Start to the first paint and memory three seconds later, beside a bare program that only shows a browser
/// window; from the click on a section slot to its page on show; and Back to a page beside opening it.
namespace {

using namespace bench;
using Clock = std::chrono::steady_clock;

const TestMachine& machine() {
    static const TestMachine bundled("start");
    return bundled;
}

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Starts a program, times it until it says that it is painted, and counts its memory three seconds later.
void measureStart(benchmark::State& state, const std::vector<std::string>& command) {
    double megabytes = 0;
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        ChildProcess child(command);
        if (child.readLine() != "shown\n") {
            state.SkipWithError("the program did not start");
            return;
        }
        state.SetIterationTime(secondsSince(begin));
        std::this_thread::sleep_for(std::chrono::seconds(3));
        megabytes = static_cast<double>(child.memory()) / (1024 * 1024);
    }
    state.counters["MB"] = megabytes;
}

void StartOfBareBrowser(benchmark::State& state) { measureStart(state, {binFolder + "/bare-browser"}); }
BENCHMARK(StartOfBareBrowser)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(7);

void StartOfKalyxo(benchmark::State& state) {
    measureStart(state, {binFolder + "/kalyxo-shown", machine().folder()});
}
BENCHMARK(StartOfKalyxo)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(7);

void ClickToPageShown(benchmark::State& state) {
    ChildProcess program(machine().driver());
    program.writeLine("start");
    program.readLine();
    int slot = 0;
    for (auto _ : state) {
        const int x = slot * 52 + 26;
        slot = (slot + 1) % 7;
        const Clock::time_point begin = Clock::now();
        program.writeLine("click " + std::to_string(x) + " 20");
        if (program.readLine().find("\"ok\":true") == std::string::npos) {
            state.SkipWithError("the click was not carried out");
            return;
        }
        state.SetIterationTime(secondsSince(begin));
    }
}
BENCHMARK(ClickToPageShown)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(21);

constexpr const char* firstSection = "command 32776";
constexpr const char* secondSection = "command 32775";
constexpr const char* back = "command 32773";

/// From a command to the start page of the first section, which is opened before the second one, on show
/// again.
void measureReturn(benchmark::State& state, const std::string& command) {
    ChildProcess program(machine().driver());
    const auto tell = [&program](const std::string& line) {
        program.writeLine(line);
        return program.readLine();
    };
    for (const char* line : {"start", firstSection, secondSection}) tell(line);
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        const std::string answer = tell(command);
        state.SetIterationTime(secondsSince(begin));
        if (answer.find("\"carriedOut\":true") == std::string::npos ||
            tell("state").find("\"section\":1,") == std::string::npos) {
            state.SkipWithError("the page is not on show");
            return;
        }
    }
}

void OpeningOfAPage(benchmark::State& state) { measureReturn(state, firstSection); }
BENCHMARK(OpeningOfAPage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(41);

void BackToAPage(benchmark::State& state) { measureReturn(state, back); }
BENCHMARK(BackToAPage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(41);

}  // namespace
