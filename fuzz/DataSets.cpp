#include "formats/DataSetFile.h"
#include "fuzz/Target.h"

/// A data set of the analyser.
void fuzz::tryInput(std::string_view input) {
    (void)formats::parseFigure(input);
    const auto decoded = formats::decodeDataSet(input);
    if (!decoded.set) return;
    const auto& set = *decoded.set;
    require(set.rowCount() <= formats::DataSet::maxRows && set.columns.size() <= formats::DataSet::maxColumns,
            "a set has as many rows and columns as there is room for");
    for (const auto& column : set.columns) {
        require(column.cells.size() == set.rowCount(), "each row has a cell");
        require(!column.isNumber() || column.values.size() == set.rowCount(), "each row has a number");
    }
    require(!set.graph || (set.graph->first < set.columns.size() && set.graph->second < set.columns.size()),
            "the graph is of columns that are there");
}
