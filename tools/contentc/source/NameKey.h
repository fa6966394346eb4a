#pragma once

#include <string>
#include <string_view>

namespace contentc {

/// The form in which names of terms and titles of pages are compared: without regard to case, accents, blanks
/// at the ends or several in a row, and a question mark at the end.
std::string nameKey(std::string_view name);

}  // namespace contentc
