#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tests/scenarios/Fragment.h"

namespace scenario {

/// A change to the machine before the program starts: `#! WHAT WHERE… JSON`.
struct MachineChange {
    std::string what;
    std::vector<std::string> words;
    Json value;  ///< null when the line has none
};

/// A line for the driver.
struct Command {
    std::string line;
};

/// `#= FRAGMENT`, `#= somewhere FRAGMENT`, `#= nowhere FRAGMENT`: what the last answer must hold.
struct Expectation {
    enum class Kind { whole, somewhere, nowhere };
    Kind kind = Kind::whole;
    Json fragment;
};

/// `#$ NAME FIELD FRAGMENT`: keeps a field of the first part of the last answer that holds the fragment, for
/// `$NAME` in later lines.
struct Capture {
    std::string name;
    std::string field;
    Json fragment;
};

/// `#? WHAT FILE [JSON]`: what must be true of a file of the machine, or a library of the program.
struct FileCheck {
    std::string what;
    std::string file;
    Json value;
};

/// A line of a scenario.
struct Step {
    int line = 0;
    std::variant<MachineChange, Command, Expectation, Capture, FileCheck> action;
};

/// What a scenario file holds, or the mistakes in it.
struct Scenario {
    std::vector<Step> steps;
    std::vector<std::string> mistakes;  ///< "LINE: message"
};

/// Reads a scenario's text. Comments that are none of the forms above are passed over.
Scenario parseScenario(std::string_view text);

}  // namespace scenario
