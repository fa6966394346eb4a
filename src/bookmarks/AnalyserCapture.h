#pragma once

#include "src/bookmarks/BookmarkRecords.h"
#include "src/components/DataAnal.h"

namespace kalyxo {

/// Asks the data analyser for its state; blocks are copied. Of a block that is shorter than it claims to be,
/// what is there is taken.
AnalyserState CaptureAnalyser(CDataAnal& analyser);

/// Brings a state back, in the order that the component needs: rows are listed before they are selected, and
/// the cursor comes last.
void RestoreAnalyser(CDataAnal& analyser, const AnalyserState& state);

}  // namespace kalyxo
