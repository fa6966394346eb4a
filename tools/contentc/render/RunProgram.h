#pragma once

#include <string>
#include <vector>

namespace contentc {

/// How a program ended.
struct ProgramEnd {
    /// Whether there is such a program.
    bool started = false;
    /// Its exit status, or −1 when it did not end by itself.
    int status = -1;
    /// What it wrote to its standard error.
    std::string errors;

    bool succeeded() const { return started && status == 0; }
};

/// Runs a program, which is looked for in the path, and waits for its end. It reads nothing, and what it
/// writes to its standard output is lost.
ProgramEnd runProgram(const std::vector<std::string>& arguments);

}  // namespace contentc
