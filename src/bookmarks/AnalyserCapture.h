#pragma once

#include "src/bookmarks/BookmarkRecords.h"
#include "src/components/DataAnal.h"

namespace kalyxo {

/// Asks the data analyser for its state; blocks are copied. A block that is shorter than it claims to be is
/// taken as far as it goes.
AnalyserState CaptureAnalyser(CDataAnal& analyser);

/// Brings a state back. It goes by the order in which the component takes it: rows are listed before they are
/// selected, and the cursor comes last.
void RestoreAnalyser(CDataAnal& analyser, const AnalyserState& state);

}  // namespace kalyxo
