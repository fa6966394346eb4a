#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kalyxo {

/// Maximum length of a value that GetIniValue gives, in bytes.
inline constexpr std::size_t kMaxIniValue = 254;

/// Finds `key` anywhere in the text (also inside a longer key or a value) and puts what stands between the
/// next "=" and the end of that line into `out`. Returns its length; 0, with `out` empty, when there is no
/// key, no "=" or the value is longer than kMaxIniValue.
std::size_t GetIniValue(std::string_view text, std::string_view key, std::string& out);

}  // namespace kalyxo
