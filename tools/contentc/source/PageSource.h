#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/SectionTable.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {

enum class PageKind {
    /// The start page of a section.
    start,
    topic,
    /// A sub-page of a topic or start page, named in a title list.
    entry,
    /// Shown from the data folder without preparation: the hidden start page and the help.
    plain,
};

enum class PageTemplate { page, molecule };

/// A page as its author wrote it: `name: value` lines, a line `---`, the body.
struct PageSource {
    SourcePlace place;
    /// Null for a plain page.
    const formats::Section* section = nullptr;
    /// The page number, which for an entry is also the item code. 0 for a plain page.
    std::int32_t number = 0;
    PageKind kind = PageKind::plain;
    TextLine title;
    /// The page id of the owning topic, for entries.
    std::int32_t topic = 0;
    SourcePlace topicPlace;
    /// The position among the pages of its kind. Pages with the same order are sorted by number.
    std::int32_t order = 0;
    PageTemplate scaffold = PageTemplate::page;
    std::vector<TextLine> body;
};

/// Reads a page of a section. Errors are reported. Nothing when the page is too faulty to be used.
std::optional<PageSource> readSectionPage(const SourceFile& file, const formats::Section& section,
                                          Diagnostics& diagnostics);

/// Reads a plain page, which has only a title and a body.
std::optional<PageSource> readPlainPage(const SourceFile& file, Diagnostics& diagnostics);

}  // namespace contentc
