#pragma once

#include "tools/contentc/source/PageHeader.h"
#include "tools/contentc/source/PageSource.h"

namespace contentc {

/// Reads the header of a page, whose number and section stand in it already. Wrong fields are reported and
/// leave the page as it was. Nothing of a page is missing afterwards that it must have, unless it was
/// reported.
void readSectionHead(const PageHeader& header, PageSource& page, Diagnostics& diagnostics);

/// Reads the header of a plain page, which has a title only.
void readPlainHead(const PageHeader& header, PageSource& page, Diagnostics& diagnostics);

}  // namespace contentc
