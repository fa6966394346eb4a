#pragma once

#include <span>
#include <string>
#include <vector>

#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// A part of a data set that is to be copied.
struct CopiedTable {
    const formats::DataSet& set;
    std::vector<std::size_t> columns;
    std::vector<int> rows;  ///< places in the set
    TemperatureUnit unit;
};

/// The headings and the rows as lines, with tabs between the cells; code page 1253. An unknown value is an
/// empty cell.
std::string tabbedText(const CopiedTable& table);

/// The same as an HTML table, in code page 1253.
std::string htmlTable(const CopiedTable& table);

}  // namespace controls::dataanalyser
