#pragma once

#include <span>

#include "tools/elementc/Record.h"
#include "tools/elementc/SourceTable.h"

namespace elementc {

/// Joins the elements of the Blue Obelisk with corrections to them and with our own table, which has one row
/// for each element. Number and symbol must agree in every row, so that a shifted table is found. A
/// correction has number, symbol, field and value.
Result<Records> mergeElements(Records bodr, std::span<const SourceRow> corrections,
                              std::span<const SourceRow> own);

}  // namespace elementc
