#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/elementc/Record.h"

namespace elementc {

/// A row of a table with the place it comes from, as `file:line`.
struct SourceRow {
    Record fields;
    std::string place;
};

/// A table in UTF-8, cells parted by tabs: the first line that is no comment (#) has the names of the
/// columns. A cell with a dash is no data. A row with more or fewer cells than names is an error.
Result<std::vector<SourceRow>> readTable(std::string_view text, const std::string& file);

/// The number of 1 to 118 in the column "number"; 0 when there is none.
int numberOf(const Record& record);

}  // namespace elementc
