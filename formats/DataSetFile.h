#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/DataSet.h"

namespace formats {

/// What is wrong with a line of a data set's file.
enum class DataSetFault {
    field,       ///< a line of the head that is no known field or has a wrong value
    incomplete,  ///< the head lacks the number, the title, a column of words or one of numbers
    cellCount,   ///< a row has more or fewer cells than there are columns
    notANumber,  ///< a row has words where a number belongs
    tooManyRows,
    cutShort,  ///< the last line is incomplete
};

/// A faulty line. A faulty row is left out; a fault in the head makes the whole file useless.
struct DataSetFaultLine {
    int line = 0;  ///< from 1
    DataSetFault fault = DataSetFault::field;
    std::string name;  ///< the first cell of a row, code page 1253
    bool operator==(const DataSetFaultLine&) const = default;
};

/// What the text of a data set's file holds.
struct DecodedDataSet {
    std::optional<DataSet> set;  ///< nothing when the head is wrong
    std::vector<DataSetFaultLine> faults;
};

/// Reads the text of a data set's file (code page 1253, lines end in LF or CR LF); docs/formats/data-sets.md
/// describes it.
DecodedDataSet decodeDataSet(std::string_view text);

/// The number in a text such as "-182,5", "0.85" or "1.8e-5"; nothing for any other text, or if the number is
/// not finite.
std::optional<double> parseFigure(std::string_view text);

}  // namespace formats
