#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace controls {

/// Gathers the characters that a reader types to jump to an element.
class TypeAhead {
  public:
    /// A pause longer than this starts a new word.
    static constexpr std::int64_t pauseMilliseconds = 1000;

    /// Takes typed characters (code page 1253) and the time on any steady clock. Returns the atomic number to
    /// jump to, 0 to stay. Characters that lead nowhere after the earlier ones start a new word.
    int type(std::string_view characters, std::int64_t milliseconds);

  private:
    std::string typed_;
    std::int64_t last_ = 0;
};

}  // namespace controls
