#pragma once

#include <string>
#include <string_view>

namespace contentc {

/// The text as it is written in HTML, also within double quotes.
std::string escapeHtml(std::string_view text);

}  // namespace contentc
