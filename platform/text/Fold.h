#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The text as it is compared when case and accents do not count: lower case, Greek letters without tonos and
/// dialytika, final sigma as sigma. Byte for byte, so offsets and length stay.
std::string fold(std::string_view cp1253);

}  // namespace platform
