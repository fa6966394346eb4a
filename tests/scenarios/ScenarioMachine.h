#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tests/scenarios/Scenario.h"

namespace scenario {

/// A machine in a temporary folder of its own, removed at the end: the machine folder, and a content folder
/// whose files can be changed without harm to the original.
class ScenarioMachine {
  public:
    /// `driver` makes the machine when it is first needed.
    ScenarioMachine(std::filesystem::path driver, const std::filesystem::path& content);
    ~ScenarioMachine();
    ScenarioMachine(const ScenarioMachine&) = delete;
    ScenarioMachine& operator=(const ScenarioMachine&) = delete;

    const std::filesystem::path& Folder() const { return m_machine; }
    /// Makes the machine if it is not made yet; an error text when that fails.
    std::optional<std::string> Make();
    /// Carries out a set-up line other than `restart`; an error text when it cannot.
    std::optional<std::string> Change(const MachineChange& change);
    /// What is not true of the file, or nothing.
    std::optional<std::string> Check(const FileCheck& check) const;

  private:
    std::filesystem::path hostPath(const std::string& name) const;
    std::optional<std::string> changeFile(const MachineChange& change);

    std::filesystem::path m_driver;
    std::filesystem::path m_root;
    std::filesystem::path m_machine;
    std::filesystem::path m_data;
    std::vector<std::string> m_options;
    bool m_made = false;
};

}  // namespace scenario
