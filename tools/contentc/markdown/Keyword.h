#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace contentc {

/// A keyword of the sources in Greek and in English.
struct Keyword {
    std::string_view greek;
    std::string_view english;
};

/// The keyword that a text in UTF-8 begins with, and what stands behind it. Case and accents do not matter.
/// Of two that fit, the longer one counts.
struct KeywordFound {
    /// The position in the list; its size when there is none.
    std::size_t index;
    std::string_view rest;
};
KeywordFound findKeyword(std::span<const Keyword> keywords, std::string_view text);

}  // namespace contentc
