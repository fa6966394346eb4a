#include "tools/contentc/source/PageSource.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "formats/TitleLists.h"
#include "tools/contentc/source/HeadMessages.h"
#include "tools/contentc/source/HeadReader.h"

namespace contentc {
namespace {

/// Reads the header, and puts the rest of the file's lines into the page as its body.
std::optional<PageHeader> takeHeader(const SourceFile& file, PageSource& page, Diagnostics& diagnostics) {
    page.markdown = readUtf8Lines(file, diagnostics);
    const auto end = std::ranges::find(page.markdown, PageHeader::lastLine, &TextLine::text);
    const auto body = end == page.markdown.end() ? end : end + 1;
    std::vector<TextLine> head;
    for (auto line = page.markdown.begin(); line != body; ++line)
        head.push_back(inCodePage(*line, diagnostics));
    page.markdown.erase(page.markdown.begin(), body);
    return PageHeader::read(file, head, diagnostics);
}

/// The page number at the start of the file's name; words may follow it. Reported when there is none, or when
/// it has leading zeros.
std::optional<std::int32_t> numberOf(const SourceFile& file, const formats::Section& section,
                                     Diagnostics& diagnostics) {
    const std::string stem = file.stem();
    const std::string digits = stem.substr(0, stem.find('-'));
    const auto number = parseNumber(digits);
    if (number && formats::pagePath(*number) && std::to_string(*number) == digits) return number;
    Diagnostic& error = diagnostics.error(file.place(), say::notAPageNumber, {stem});
    if (!number)
        error.suggest(say::nameFileSo, {std::to_string(firstOwnTopic(section)) + '-' + stem + ".md"});
    return std::nullopt;
}

/// Reports a number that does not suit the kind: start pages have fixed numbers, entries item codes.
void checkNumber(const PageSource& page, Diagnostics& diagnostics) {
    const bool isStart = page.number == page.section->startPage;
    if (page.kind == PageKind::start && !isStart) {
        diagnostics.error(page.place, say::otherStartPage, {page.section->startPage, page.number});
    } else if (page.kind != PageKind::start && isStart) {
        diagnostics.error(page.place, say::mustBeStartPage, {page.number});
    } else if (page.kind == PageKind::entry && (!formats::titleListFile(formats::listNumberOf(page.number)) ||
                                                formats::entryNumberOf(page.number) < 1)) {
        diagnostics.error(page.place, say::entryOfNoList, {page.number});
    }
}

}  // namespace

std::optional<PageSource> readSectionPage(const SourceFile& file, const formats::Section& section,
                                          Diagnostics& diagnostics) {
    PageSource page;
    page.place = file.place();
    page.section = &section;
    const auto number = numberOf(file, section, diagnostics);
    page.number = number.value_or(0);
    const auto header = takeHeader(file, page, diagnostics);
    if (!header) return std::nullopt;
    readSectionHead(*header, page, diagnostics);
    if (!number) return std::nullopt;
    checkNumber(page, diagnostics);
    return page;
}

std::optional<PageSource> readPlainPage(const SourceFile& file, Diagnostics& diagnostics) {
    PageSource page;
    page.place = file.place();
    const auto header = takeHeader(file, page, diagnostics);
    if (!header) return std::nullopt;
    readPlainHead(*header, page, diagnostics);
    return page;
}

}  // namespace contentc
