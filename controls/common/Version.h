#pragma once

#include <string_view>

namespace controls {

/// The version that every component reports. The version in its file has one number more, a zero.
inline constexpr std::string_view version = "1.0.40";

}  // namespace controls
