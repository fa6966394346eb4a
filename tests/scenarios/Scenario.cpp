#include "tests/scenarios/Scenario.h"

#include <algorithm>
#include <array>
#include <optional>

namespace scenario {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string takeWord(std::string_view& rest) {
    rest = trimmed(rest);
    std::string word(rest.substr(0, rest.find_first_of(kBlanks)));
    rest.remove_prefix(word.size());
    rest = trimmed(rest);
    return word;
}

std::optional<Json> jsonOf(std::string_view text) {
    Json value = Json::parse(text, nullptr, false);
    return value.is_discarded() ? std::nullopt : std::optional(std::move(value));
}

/// How many plain words stand before the JSON value of a set-up line, and whether there is a value.
struct ChangeForm {
    std::string_view what;
    std::size_t words;
    bool value;
};

constexpr std::array<ChangeForm, 11> kChanges = {{
    {"machine", 0, true},
    {"options", 0, true},
    {"setting", 1, true},
    {"write", 1, true},
    {"bytes", 1, true},
    {"cut", 1, true},
    {"copy", 2, false},
    {"version", 1, true},
    {"replace", 1, true},
    {"delete", 1, false},
    {"restart", 0, false},
}};

struct CheckForm {
    std::string_view what;
    bool value;
};

constexpr std::array<CheckForm, 9> kChecks = {{
    {"file", false},
    {"no-file", false},
    {"contains", true},
    {"lacks", true},
    {"bytes", true},
    {"count", true},
    {"loaded", false},
    {"not-loaded", false},
    {"printed", true},
}};

using Parsed = std::optional<decltype(Step::action)>;

Parsed machineChange(std::string_view rest) {
    MachineChange action{takeWord(rest), {}, nullptr};
    const auto form = std::ranges::find(kChanges, action.what, &ChangeForm::what);
    if (form == kChanges.end()) return std::nullopt;
    for (std::size_t i = 0; i < form->words; ++i) {
        action.words.push_back(takeWord(rest));
        if (action.words.back().empty()) return std::nullopt;
    }
    if (form->value) {
        std::optional<Json> value = jsonOf(rest);
        if (!value) return std::nullopt;
        action.value = std::move(*value);
        return action;
    }
    return rest.empty() ? Parsed(std::move(action)) : std::nullopt;
}

Parsed expectation(std::string_view rest) {
    Expectation action;
    std::string_view behind = rest;
    const std::string word = takeWord(behind);
    if (word == "somewhere") action.kind = Expectation::Kind::somewhere;
    if (word == "nowhere") action.kind = Expectation::Kind::nowhere;
    std::optional<Json> fragment = jsonOf(action.kind == Expectation::Kind::whole ? rest : behind);
    if (!fragment) return std::nullopt;
    action.fragment = std::move(*fragment);
    return action;
}

Parsed capture(std::string_view rest) {
    Capture action{takeWord(rest), takeWord(rest), nullptr};
    std::optional<Json> fragment = jsonOf(rest);
    if (!fragment || action.name.empty() || action.field.empty()) return std::nullopt;
    action.fragment = std::move(*fragment);
    return action;
}

Parsed fileCheck(std::string_view rest) {
    FileCheck action{takeWord(rest), takeWord(rest), nullptr};
    const auto form = std::ranges::find(kChecks, action.what, &CheckForm::what);
    if (form == kChecks.end() || action.file.empty()) return std::nullopt;
    if (!form->value) return rest.empty() ? Parsed(std::move(action)) : std::nullopt;
    std::optional<Json> value = jsonOf(rest);
    if (!value) return std::nullopt;
    action.value = std::move(*value);
    return action;
}

/// Whether the line is one of the special comments; then `parsed` is what it says, if it can be read.
bool isSpecial(std::string_view line, Parsed& parsed) {
    const std::string_view rest = line.substr(std::min<std::size_t>(line.size(), 2));
    if (line.starts_with("#!")) {
        parsed = machineChange(rest);
    } else if (line.starts_with("#=")) {
        parsed = expectation(rest);
    } else if (line.starts_with("#$")) {
        parsed = capture(rest);
    } else if (line.starts_with("#?")) {
        parsed = fileCheck(rest);
    } else {
        return false;
    }
    return true;
}

void addLine(Scenario& scenario, int number, std::string_view line) {
    Parsed parsed;
    if (isSpecial(line, parsed)) {
        if (parsed) {
            scenario.steps.push_back({number, std::move(*parsed)});
        } else {
            scenario.mistakes.push_back(std::to_string(number) + ": cannot be read: " + std::string(line));
        }
    } else if (!line.empty() && !line.starts_with('#')) {
        scenario.steps.push_back({number, Command{std::string(line)}});
    }
}

}  // namespace

Scenario parseScenario(std::string_view text) {
    Scenario scenario;
    for (int number = 1; !text.empty(); ++number) {
        const std::string_view line = text.substr(0, text.find('\n'));
        addLine(scenario, number, trimmed(line));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
    }
    return scenario;
}

}  // namespace scenario
