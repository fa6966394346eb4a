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
    Start,
    Topic,
    /// A sub-page of a topic or start page, named in a title list.
    Entry,
    /// Shown as it stands in the data folder, without preparation: the hidden start page and the help.
    Plain,
};

enum class PageTemplate { Page, Molecule };

/// A page as its author wrote it: `name: value` lines, a line `---`, the body.
struct PageSource {
    SourcePlace place;
    /// Null for a plain page.
    const formats::Section* section = nullptr;
    /// The page number; for an entry the item code too. 0 for a plain page.
    std::int32_t number = 0;
    PageKind kind = PageKind::Plain;
    TextLine title;
    /// The page id of the owning topic, for entries.
    std::int32_t topic = 0;
    SourcePlace topicPlace;
    /// Position among the pages of its kind; equal ones go by number.
    std::int32_t order = 0;
    PageTemplate scaffold = PageTemplate::Page;
    std::vector<TextLine> body;
};

/// Reads a page of a section. Nothing when it is too faulty to be used further; everything wrong is reported.
std::optional<PageSource> readSectionPage(const SourceFile& file, const formats::Section& section,
                                          Diagnostics& diagnostics);

/// Reads a page that has nothing but a title and a body.
std::optional<PageSource> readPlainPage(const SourceFile& file, Diagnostics& diagnostics);

}  // namespace contentc
