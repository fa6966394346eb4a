#include "tools/contentc/source/ElementPages.h"

#include <algorithm>
#include <array>
#include <optional>

#include "controls/elements/Element.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"
#include "tools/contentc/cards/ElementPage.h"
#include "tools/contentc/source/DataMessages.h"

namespace contentc {
namespace {

using FamilyTexts = std::array<std::optional<FamilyText>, controls::familyCount>;

/// The family with the name, in code page 1253.
std::optional<std::size_t> familyNamed(std::string_view name) {
    for (int code = 1; code <= controls::familyCount; ++code) {
        const auto family = controls::familyOfCode(code);
        if (family && platform::fold(controls::familyName(*family)) == platform::fold(name))
            return static_cast<std::size_t>(code - 1);
    }
    return std::nullopt;
}

/// The parts of a line between `|`.
std::vector<std::string> parts(std::string_view line) {
    std::vector<std::string> result;
    for (std::size_t at = 0; at <= line.size();) {
        const std::size_t end = std::min(line.find('|', at), line.size());
        result.emplace_back(trimmed(line.substr(at, end - at)));
        at = end + 1;
    }
    return result;
}

FamilyTexts readFamilies(const SourceFile& file, Diagnostics& diagnostics) {
    FamilyTexts texts;
    for (const TextLine& line : readUtf8Lines(file, diagnostics)) {
        const std::string_view text = trimmed(line.text);
        if (text.empty() || text.starts_with('#')) continue;
        const auto words = parts(text);
        const auto family = familyNamed(platform::fromUtf8(words.front()));
        if (words.size() != 3 || words[1].empty() || words[2].empty()) {
            diagnostics.error(line.place, say::notAFamilyLine);
        } else if (!family) {
            diagnostics.error(line.place, say::noFamily, {words.front()});
        } else {
            texts[*family] = FamilyText{words[1], words[2]};
        }
    }
    return texts;
}

bool hasPage(const std::vector<PageSource>& pages, std::int32_t number) {
    return std::ranges::find(pages, number, &PageSource::number) != pages.end();
}

}  // namespace

void addElementPages(const SourceFile& families, std::vector<PageSource>& pages, Diagnostics& diagnostics) {
    const FamilyTexts texts = readFamilies(families, diagnostics);
    const formats::Section& section = *formats::sectionByKey("elemcomp");
    for (const controls::Element& element : controls::elements()) {
        const auto& text = texts[static_cast<std::size_t>(element.family)];
        const std::int32_t number = elementPageNumber(element.number);
        if (!text || hasPage(pages, number)) continue;
        // A path below the families' file, so that messages tell where the page comes from.
        const SourceFile file{families.path / (std::to_string(number) + ".md"),
                              elementPageSource(element, *text), families.layer};
        if (auto page = readSectionPage(file, section, diagnostics)) pages.push_back(std::move(*page));
    }
}

}  // namespace contentc
