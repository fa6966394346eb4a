#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Each target tries one kind of input: it has the code read it, and ends the process when that gives what it
/// must not.
namespace fuzz {

/// Defined by each target; called with one input after the other.
void tryInput(std::string_view input);

/// Ends the process, so that the input is kept as a finding, when `holds` is false. `what` says what should
/// be so.
void require(bool holds, const char* what);

/// The parts of an input for code that reads several texts: lines that are just `%%` stand between them.
/// Always `count`; those that are missing are empty, and the last one has all that is left.
std::vector<std::string> partsOf(std::string_view input, std::size_t count);

}  // namespace fuzz
