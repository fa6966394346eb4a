#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "tools/contentc/source/PageSource.h"
#include "tools/contentc/source/SourceTree.h"
#include "tools/contentc/source/TermSource.h"
#include "tools/contentc/source/ToolSource.h"
#include "tools/contentc/source/WordsSource.h"

namespace contentc {

/// The sources, parsed.
struct Content {
    /// The pages of all sections.
    std::vector<PageSource> pages;
    std::optional<PageSource> startPage;
    std::optional<PageSource> helpPage;
    std::vector<TermSource> terms;
    WordsSource words;
    Tools tools;
};

/// Parses all sources. Errors are reported, and what is too faulty to be used is left out.
Content readContent(const SourceTree& tree, Diagnostics& diagnostics);

/// The start page and the topics of a section in display order.
std::vector<const PageSource*> topicsOf(const Content& content, const formats::Section& section);

/// The entries of a topic or start page in display order.
std::vector<const PageSource*> entriesOf(const Content& content, const PageSource& topic);

/// The page that a click on the element opens. Null when it has none.
const PageSource* elementPage(const Content& content, int atomicNumber);

}  // namespace contentc
