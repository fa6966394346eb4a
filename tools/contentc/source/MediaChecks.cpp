#include "tools/contentc/source/MediaChecks.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "tools/contentc/source/MediaMessages.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {
namespace {

/// How files of a kind begin.
const std::map<std::string, std::string_view, std::less<>>& beginnings() {
    static const std::map<std::string, std::string_view, std::less<>> kinds{{".png", "\x89PNG\r\n\x1A\n"},
                                                                            {".jpg", "\xFF\xD8\xFF"},
                                                                            {".bmp", "BM"},
                                                                            {".webm", "\x1A\x45\xDF\xA3"}};
    return kinds;
}

void checkBeginning(const SourceFile& file, Diagnostics& diagnostics) {
    const std::string extension = takenExtension(file.path);
    const auto kind = beginnings().find(extension);
    if (kind == beginnings().end() || file.bytes.starts_with(kind->second)) return;
    diagnostics.error(file.place(), say::isOtherKind, {extension.substr(1)});
}

/// The lines of a molecule file, up to the end of the first molecule.
std::vector<std::string_view> moleculeLines(std::string_view bytes) {
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.starts_with("$$$$")) break;
        lines.push_back(line);
    }
    return lines;
}

/// The number in a column of three characters; −1 when there is none.
std::int32_t columnNumber(std::string_view line, std::size_t at) {
    return at + 3 > line.size() ? -1 : parseNumber(trimmed(line.substr(at, 3))).value_or(-1);
}

void checkMolecule(const SourceFile& file, Diagnostics& diagnostics) {
    constexpr std::size_t headLines = 4;
    const std::vector<std::string_view> lines = moleculeLines(file.bytes);
    const std::string_view counts = lines.size() < headLines ? std::string_view() : lines[headLines - 1];
    if (counts.ends_with("V3000")) return;
    const std::int32_t atoms = columnNumber(counts, 0);
    const std::int32_t bonds = columnNumber(counts, 3);
    if (atoms < 1 || bonds < 0) {
        diagnostics.error(file.place(static_cast<int>(headLines)), say::noCountsLine)
            .suggest(say::saveAsV2000);
    } else if (lines.size() < headLines + static_cast<std::size_t>(atoms) + static_cast<std::size_t>(bonds)) {
        diagnostics.error(file.place(static_cast<int>(lines.size())), say::moleculeIsCutShort,
                          {atoms, bonds});
    }
}

}  // namespace

void checkMedia(const SourceTree& tree, Diagnostics& diagnostics) {
    const auto isOwn = [](const SourceFile& file) { return file.layer == 0 && file.madeExtension.empty(); };
    for (const auto* files : {&tree.pictures, &tree.videos}) {
        for (const SourceFile& file : *files) {
            if (isOwn(file)) checkBeginning(file, diagnostics);
        }
    }
    for (const SourceFile& file : tree.molecules) {
        if (isOwn(file)) checkMolecule(file, diagnostics);
    }
    for (const auto* drawings : {&tree.drawings, &tree.drawnDrawings}) {
        for (const SourceFile& file : *drawings) {
            if (isOwn(file) && file.bytes.find("<svg") == std::string::npos)
                diagnostics.error(file.place(), say::isOtherKind, {"svg"});
        }
    }
}

}  // namespace contentc
