#include "tests/scenarios/ScenarioRun.h"

#include <iostream>
#include <utility>

namespace scenario {

ScenarioRun::ScenarioRun(std::filesystem::path driver, const std::filesystem::path& content)
    : m_driverFile(std::move(driver)), m_machine(m_driverFile, content) {}

bool ScenarioRun::Run(const Scenario& scenario, const std::string& name) {
    m_name = name;
    for (const std::string& mistake : scenario.mistakes) {
        std::cout << name << ':' << mistake << '\n';
        m_failed = true;
    }
    for (const Step& step : scenario.steps) {
        m_line = step.line;
        std::visit([this](const auto& action) { perform(action); }, step.action);
        if (m_broken) return false;
    }
    finishCommand();
    endDriver();
    return !m_failed;
}

void ScenarioRun::perform(const MachineChange& change) {
    finishCommand();
    if (change.what == "restart") return endDriver();
    if (m_driver) return fail("the machine cannot be changed while the program runs");
    if (const auto problem = m_machine.Change(change)) {
        fail(*problem);
        m_broken = true;
    }
}

void ScenarioRun::perform(const Command& command) {
    finishCommand();
    if (!m_driver && !startDriver()) return;
    const std::optional<std::string> line = m_driver->Ask(withCaptures(command.line));
    m_answer = line ? Json::parse(*line, nullptr, false) : Json(Json::value_t::discarded);
    m_commandLine = m_line;
    if (!m_answer.is_discarded()) return;
    fail(line ? "no JSON: " + *line : "no answer");
    m_broken = true;
}

/// A command succeeds, unless an expectation looks at `ok` itself.
void ScenarioRun::finishCommand() {
    const int line = std::exchange(m_commandLine, 0);
    if (line == 0 || m_answer.value("ok", false)) return;
    const int here = std::exchange(m_line, line);
    fail("not carried out: " + m_answer.dump());
    m_line = here;
}

void ScenarioRun::perform(const Expectation& expectation) {
    if (expectation.fragment.contains("ok")) m_commandLine = 0;
    if (expectation.kind == Expectation::Kind::whole) {
        if (const auto found = difference(m_answer, expectation.fragment)) fail(*found);
        return;
    }
    const bool wanted = expectation.kind == Expectation::Kind::somewhere;
    const bool there = findSomewhere(m_answer, expectation.fragment) != nullptr;
    if (there != wanted) {
        fail((there ? "there is " : "there is no ") + expectation.fragment.dump() + " in " + m_answer.dump());
    }
}

void ScenarioRun::perform(const Capture& capture) {
    const Json* found = findSomewhere(m_answer, capture.fragment);
    if (found == nullptr || !found->contains(capture.field)) {
        fail("no " + capture.field + " of " + capture.fragment.dump() + " in " + m_answer.dump());
        m_broken = true;
        return;
    }
    const Json& value = (*found)[capture.field];
    m_captures[capture.name] = value.is_string() ? value.get<std::string>() : value.dump();
}

void ScenarioRun::perform(const FileCheck& check) {
    if (check.what.ends_with("loaded")) {
        const bool loaded = m_driver && m_driver->HasLoaded(check.file);
        if (loaded != (check.what == "loaded")) fail(check.file + (loaded ? " is loaded" : " is not loaded"));
    } else if (const auto problem = m_machine.Check(check)) {
        fail(*problem);
    }
}

bool ScenarioRun::startDriver() {
    if (const auto problem = m_machine.Make()) {
        fail(*problem);
        m_broken = true;
        return false;
    }
    m_driver = std::make_unique<DriverProcess>(
        std::vector<std::string>{m_driverFile, "--machine", m_machine.Folder()}, m_machine.Folder());
    return true;
}

void ScenarioRun::endDriver() {
    if (!m_driver) return;
    const int status = std::exchange(m_driver, nullptr)->Finish();
    if (status != 0) fail("the driver ended with " + std::to_string(status));
}

void ScenarioRun::fail(const std::string& message) {
    std::cout << m_name << ':' << m_line << ": " << message << '\n';
    m_failed = true;
}

std::string ScenarioRun::withCaptures(std::string line) const {
    for (const auto& [name, value] : m_captures) {
        for (std::size_t at = line.find('$' + name); at != std::string::npos;
             at = line.find('$' + name, at)) {
            line.replace(at, name.size() + 1, value);
            at += value.size();
        }
    }
    return line;
}

}  // namespace scenario
