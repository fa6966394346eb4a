#pragma once

#include <string_view>

namespace controls {

/// The version that every component reports; the version text of its file begins with it.
std::string_view version();

}  // namespace controls
