#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/DataSet.h"

namespace formats {

/// What can be wrong with a line of a data set's file.
enum class DataSetFault {
    field,       ///< a line of the head that is no known field with a right value
    incomplete,  ///< the head ends without number, title or a column of words and one of numbers
    cellCount,   ///< a row has more or fewer cells than there are columns
    notANumber,  ///< a row has words where a number belongs
    tooManyRows,
    cutShort,  ///< the last line has no end
};

/// A faulty line; a row with a fault is left out, a fault of the head makes the whole file useless.
struct DataSetFaultLine {
    int line = 0;  ///< from 1
    DataSetFault fault = DataSetFault::field;
    std::string name;  ///< the first cell of a row, code page 1253
    bool operator==(const DataSetFaultLine&) const = default;
};

struct DecodedDataSet {
    std::optional<DataSet> set;  ///< nothing when the head is wrong
    std::vector<DataSetFaultLine> faults;
};

/// Reads the text of a data set's file (code page 1253, lines end in LF or CR LF); docs/formats/data-sets.md
/// tells the form.
DecodedDataSet decodeDataSet(std::string_view text);

/// A number such as "-182,5", "0.85" or "1.8e-5"; nothing for another text, and for one that is not finite.
std::optional<double> parseFigure(std::string_view text);

}  // namespace formats
