#pragma once

#include <span>

#include "tools/elementc/Record.h"
#include "tools/elementc/SourceTable.h"

namespace elementc {

/// Joins the elements of the Blue Obelisk with the corrections to them and with our own table, which has a
/// row for each. Symbols must agree, so that no row can slip. A correction has number, symbol, field and
/// value.
Result<Records> mergeElements(Records bodr, std::span<const SourceRow> corrections,
                              std::span<const SourceRow> own);

}  // namespace elementc
