#pragma once

#include <filesystem>

#include "tests/scenarios/Fragment.h"

namespace scenario {

/// What stands where in a PDF file, as poppler's pdftohtml finds it: for each page its size, pictures and
/// lines of text, as `{"rect": [left, top, width, height], "images": [{"rect"}], "texts": [{"rect",
/// "text"}]}`. All lengths are in 1/216 inch, so a printer of 216 pixels per inch is measured in its own.
/// Null when it cannot be read.
Json printedPages(const std::filesystem::path& pdf);

}  // namespace scenario
