#pragma once

#include <map>
#include <memory>
#include <string>

#include "tests/scenarios/DriverProcess.h"
#include "tests/scenarios/ScenarioMachine.h"

namespace scenario {

/// Carries a scenario out and tells what was not as it must be.
class ScenarioRun {
  public:
    ScenarioRun(std::filesystem::path driver, const std::filesystem::path& content);

    /// Whether every expectation held; `name` stands before each line of the report on standard output.
    bool Run(const Scenario& scenario, const std::string& name);

  private:
    void perform(const MachineChange& change);
    void perform(const Command& command);
    void perform(const Expectation& expectation);
    void perform(const Capture& capture);
    void perform(const FileCheck& check);
    bool startDriver();
    void endDriver();
    void finishCommand();
    void fail(const std::string& message);
    std::string withCaptures(std::string line) const;

    std::filesystem::path m_driverFile;
    ScenarioMachine m_machine;
    std::unique_ptr<DriverProcess> m_driver;
    std::map<std::string, std::string> m_captures;
    Json m_answer;
    std::string m_name;
    int m_line = 0;
    int m_commandLine = 0;  // of a command whose success no expectation has looked at yet, or 0
    bool m_failed = false;
    bool m_broken = false;  // nothing that follows can succeed
};

}  // namespace scenario
