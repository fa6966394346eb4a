#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/Trimmed.h"
#include "tools/contentc/source/Diagnostics.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// One line in code page 1253, with the place it comes from.
struct TextLine {
    std::string text;
    SourcePlace place;
};

/// The lines of a UTF-8 source file in code page 1253, without line ends. Characters outside the code page,
/// bytes that are not UTF-8 and control characters (some are markers in finished pages) become '?', and the
/// first on each line is reported.
std::vector<TextLine> readLines(const SourceFile& file, Diagnostics& diagnostics);

/// The lines of a UTF-8 source file as they are, without line ends and byte-order mark. Bytes that are not
/// UTF-8, control characters and characters for private use become '?', and the first on each line is
/// reported.
std::vector<TextLine> readUtf8Lines(const SourceFile& file, Diagnostics& diagnostics);

/// A line that `readUtf8Lines` gave, in code page 1253. A character outside of it is reported.
TextLine inCodePage(const TextLine& utf8, Diagnostics& diagnostics);

/// The place of a part of the line, which must be a part of its text in UTF-8.
SourcePlace placeOf(std::string_view part, const TextLine& line);

/// The same for a part of a text in code page 1253.
SourcePlace placeOfBytes(std::string_view part, const TextLine& line);

using platform::trimmed;

/// The text as a decimal number. Nothing when it is something else or does not fit into 32 bits.
std::optional<std::int32_t> parseNumber(std::string_view text);

}  // namespace contentc
