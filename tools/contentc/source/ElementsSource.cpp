#include "tools/contentc/source/ElementsSource.h"

#include <algorithm>
#include <optional>

namespace contentc {
namespace {

constexpr std::int32_t lastElement = 118;

std::optional<formats::ElementPageRecord> parseElement(std::string_view line) {
    const std::size_t blank = std::min(line.find_first_of(" \t"), line.size());
    const auto atomicNumber = parseNumber(line.substr(0, blank));
    const auto pageId = parseNumber(trimmed(line.substr(blank)));
    if (!atomicNumber || !pageId || *atomicNumber < 1 || *atomicNumber > lastElement) return std::nullopt;
    return formats::ElementPageRecord{static_cast<std::uint8_t>(*atomicNumber), *pageId};
}

}  // namespace

std::vector<ElementLine> readElements(const SourceFile& file, Diagnostics& diagnostics) {
    std::vector<ElementLine> elements;
    for (const TextLine& line : readLines(file, diagnostics)) {
        const std::string_view text = trimmed(line.text);
        if (text.empty() || text.starts_with('#')) continue;
        const auto record = parseElement(text);
        const auto isSame = [&](const ElementLine& other) {
            return other.record.elementKey == record->elementKey;
        };
        if (!record) {
            diagnostics.error(line.place, "not a line 'atomic-number page-id'");
        } else if (std::ranges::any_of(elements, isSame)) {
            diagnostics.error(line.place, "element " + std::to_string(record->elementKey) + " stands twice");
        } else {
            elements.push_back({line.place, *record});
        }
    }
    return elements;
}

}  // namespace contentc
