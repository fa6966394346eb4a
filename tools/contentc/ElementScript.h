#pragma once

#include <string>

namespace contentc {

/// The script, in UTF-8, from which the tools in pages take the elements: for each symbol the atomic number,
/// the Greek name, the relative atomic mass in the digits that are known of it, and whether that is a
/// standard mass or just the mass number of the longest-lived isotope.
std::string elementScript();

}  // namespace contentc
