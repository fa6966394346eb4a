#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The text in the form in which it is compared without regard to case and accents: lower case, Greek letters
/// without tonos and dialytika, final sigma as sigma. Each byte becomes one byte, so offsets and length stay.
std::string fold(std::string_view cp1253);

}  // namespace platform
