#pragma once

#include <string_view>

namespace controls {

/// The version that every component reports; the version text of its file begins with it.
inline constexpr std::string_view version = "1.0.40";

}  // namespace controls
