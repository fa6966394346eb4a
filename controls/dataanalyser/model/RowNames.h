#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "formats/DataSet.h"

namespace controls::dataanalyser {

/// The words that name a row on a narrow place: its first cell of words.
std::string_view shortRowName(const formats::DataSet& set, std::size_t row);

/// Finds the row that typed characters lead to.
class RowSearch {
  public:
    /// A pause longer than this starts a new word.
    static constexpr std::int64_t pauseMilliseconds = 1000;

    /// Takes typed characters (code page 1253) and the time on any steady clock. Of the rows listed, the one
    /// with exactly these words, else the first with a cell that begins with them; case and accents do not
    /// count. Returns its place in the set, −1 to stay. Characters that lead nowhere start a new word.
    int type(std::string_view characters, std::int64_t milliseconds, const formats::DataSet& set,
             std::span<const int> rows);

  private:
    std::string typed_;
    std::int64_t last_ = 0;
};

}  // namespace controls::dataanalyser
