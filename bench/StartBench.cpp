#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "bench/ChildProcess.h"

/// Start to the first paint and memory three seconds later, beside a bare program that only shows a browser
/// window; and from the click on a section slot to its page on show.
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

const std::string kBin = KALYXO_BIN_FOLDER;
const std::string kContent = KALYXO_CONTENT_FOLDER;

/// A machine with the bundled content, removed at the end.
class TestMachine {
  public:
    TestMachine() : m_folder(fs::temp_directory_path() / ("kalyxo-bench-" + std::to_string(::getpid()))) {
        ChildProcess maker({kBin + "/kalyxo-drive", "--new-machine", m_folder, "--data", kContent});
        maker.readLine();
    }
    ~TestMachine() { fs::remove_all(m_folder); }
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;
    std::string folder() const { return m_folder; }
    std::vector<std::string> driver() const { return {kBin + "/kalyxo-drive", "--machine", m_folder}; }

    static const TestMachine& instance() {
        static const TestMachine machine;
        return machine;
    }

  private:
    fs::path m_folder;
};

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

void StartOfBareBrowser(benchmark::State& state) { measureStart(state, {kBin + "/bare-browser"}); }
BENCHMARK(StartOfBareBrowser)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(7);

void StartOfKalyxo(benchmark::State& state) {
    measureStart(state, {kBin + "/kalyxo-shown", TestMachine::instance().folder()});
}
BENCHMARK(StartOfKalyxo)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(7);

void ClickToPageShown(benchmark::State& state) {
    ChildProcess program(TestMachine::instance().driver());
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

}  // namespace
