#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

#include "bench/TestMachine.h"

/// Processor time that the program and the engine's processes use for a page with a molecule, as a share of
/// one core: while the molecule turns, and once it rests.
namespace {

using namespace bench;

constexpr std::chrono::seconds measured{5};
/// What opening the page goes on with when the page is on show already.
constexpr std::chrono::seconds untilSettled{2};
/// How often the look of the button is waited for on a busy machine.
constexpr int maxTries = 5;
constexpr const char* spinButton = "click 616 468";

void measureMolecule(benchmark::State& state, bool turns) {
    const TestMachine machine(turns ? "turning" : "resting");
    ChildProcess program(machine.driver());
    const auto tell = [&program](const std::string& line) {
        program.writeLine(line);
        return program.readLine();
    };
    for (const char* line : {"start", "maximize", "command 32775"}) tell(line);
    if (tell("control 1035 ShowItem 370030 130003 false").find("\"ok\":true") == std::string::npos) {
        state.SkipWithError("the page is not on show");
        return;
    }
    const auto comesTo = [&tell](bool turning) {
        const auto turnsNow = [&] { return tell("pixel 602 480").find("8fc1ff") != std::string::npos; };
        for (int tries = 0; tries < maxTries && turnsNow() != turning; ++tries) {
            std::this_thread::sleep_for(untilSettled);
        }
        return turnsNow() == turning;
    };
    // It turns from the beginning. The button shows that by its look, but not under the pointer.
    bool does = comesTo(true);
    if (does && !turns) {
        tell(spinButton);
        tell("mouse move 300 300");
        does = comesTo(false);
    }
    if (!does) {
        state.SkipWithError("the molecule does not do what is to be measured");
        return;
    }
    std::this_thread::sleep_for(untilSettled);
    for (auto _ : state) {
        const double before = program.processorSeconds();
        std::this_thread::sleep_for(measured);
        const double used = program.processorSeconds() - before;
        state.SetIterationTime(used);
        state.counters["core%"] = 100 * used / std::chrono::duration<double>(measured).count();
    }
}

void MoleculeTurning(benchmark::State& state) { measureMolecule(state, true); }
BENCHMARK(MoleculeTurning)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

void MoleculeAtRest(benchmark::State& state) { measureMolecule(state, false); }
BENCHMARK(MoleculeAtRest)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
