#include <fstream>
#include <iostream>
#include <iterator>

#include "tests/scenarios/ScenarioRun.h"

/// Runs one scenario: scenario-runner DRIVER CONTENT SCENARIO. Exit status 0 when all is as it must be, 1
/// when something is not, 2 for wrong arguments.
int main(int argc, char** argv) {
    constexpr int arguments = 4;
    if (argc != arguments) {
        std::cerr << "usage: scenario-runner DRIVER CONTENT SCENARIO\n";
        return 2;
    }
    const std::filesystem::path file = argv[3];
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        std::cerr << file.string() << ": cannot be read\n";
        return 2;
    }
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    scenario::ScenarioRun run(std::filesystem::absolute(argv[1]), argv[2]);
    return run.Run(scenario::parseScenario(text), file.filename()) ? 0 : 1;
}
