#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "formats/DataSet.h"

namespace controls::dataanalyser {

/// The name of a row where there is little room: its first cell of words.
std::string_view shortRowName(const formats::DataSet& set, std::size_t row);

/// The first of these rows that has a cell with exactly the typed words (code page 1253), else the first with
/// a cell that begins with them. Case and accents do not count. Nothing when there is none.
std::optional<int> findRowByStart(const formats::DataSet& set, std::span<const int> rows,
                                  std::string_view typed);

}  // namespace controls::dataanalyser
