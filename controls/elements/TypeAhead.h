#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace controls {

/// Gathers the characters that a reader types to jump to something by its name.
class TypeAhead {
  public:
    /// After a longer pause a new name begins.
    static constexpr std::int64_t pauseMilliseconds = 1000;

    /// Adds typed characters (code page 1253) and returns what `find` finds for the name typed so far; its
    /// result is false when it finds nothing. Then the new characters alone begin a new name. The time may
    /// come from any steady clock.
    template <class Find>
    auto type(std::string_view characters, std::int64_t milliseconds, const Find& find) {
        if (milliseconds - last_ > pauseMilliseconds) typed_.clear();
        last_ = milliseconds;
        typed_ += characters;
        auto found = find(std::string_view(typed_));
        if (found) return found;
        typed_ = characters;
        return find(std::string_view(typed_));
    }

  private:
    std::string typed_;
    std::int64_t last_ = 0;
};

}  // namespace controls
