#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/SectionTable.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// The kinds of pages.
enum class PageKind {
    /// The start page of a section.
    start,
    topic,
    /// A sub-page of a topic or start page, named in a title list.
    entry,
    /// Shown from the data folder without preparation: the hidden start page and the help.
    plain,
};

/// The frame into which a page's text is put.
enum class PageTemplate { page, molecule };

/// A school year, and what of its book a page belongs to.
struct ClassChapter {
    /// The position in `schoolYears()`.
    std::size_t year;
    /// The number of the chapter, as written; may be empty.
    std::string chapter;
};

/// A place on the time line.
struct TimeLineYear {
    std::int32_t year;     ///< before our era negative
    bool isAbout = false;  ///< whether nobody knows it exactly
};

/// The names of the school years in their order.
std::span<const std::string_view> schoolYears();

/// A school year and what stands behind its name, in code page 1253. Nothing when it is none.
std::optional<ClassChapter> schoolYearNamed(std::string_view text);

/// A page as its author wrote it: `name: value` lines, a line `---`, the body.
struct PageSource {
    SourcePlace place;
    /// Null for a plain page.
    const formats::Section* section = nullptr;
    /// The page number, which for an entry is also the item code. 0 for a plain page.
    std::int32_t number = 0;
    PageKind kind = PageKind::plain;
    TextLine title;
    /// The page id of the owning topic, for entries; 0 until `resolveTopics` has found it.
    std::int32_t topic = 0;
    /// Its number or title, as written.
    TextLine topicName;
    /// The position among the pages of its kind. Pages with the same order are sorted by number.
    std::int32_t order = 0;
    PageTemplate scaffold = PageTemplate::page;
    /// What stands below the molecule, as HTML in code page 1253; may be empty.
    std::string moleculeCaption;
    /// One sentence, shown beside links to the page; may be empty.
    TextLine summary;
    std::vector<ClassChapter> classes;
    /// Titles or numbers of pages: what this one builds on, what builds on it, and what else is related.
    std::vector<TextLine> before, after, see;
    /// Words by which the search finds the page besides those on it.
    std::string searchWords;
    /// When it was, for the time line.
    std::optional<TimeLineYear> year;
    /// The body in Markdown and UTF-8.
    std::vector<TextLine> markdown;
    /// HTML with marks, which is made of it later.
    std::vector<TextLine> body;
};

/// The first of the numbers that are free for topics of an author's own.
constexpr std::int32_t firstOwnTopic(const formats::Section& section) {
    constexpr std::int32_t numbersOfSection = 10'000;
    constexpr std::int32_t ofProgram = 9'000;
    return section.startPage / numbersOfSection * numbersOfSection + ofProgram;
}

/// The kind of a page that does not tell it: by its number.
PageKind kindByNumber(std::int32_t number, const formats::Section& section);

/// Reads a page of a section. Errors are reported. Nothing when the page is too faulty to be used.
std::optional<PageSource> readSectionPage(const SourceFile& file, const formats::Section& section,
                                          Diagnostics& diagnostics);

/// Reads a plain page, which has only a title and a body.
std::optional<PageSource> readPlainPage(const SourceFile& file, Diagnostics& diagnostics);

}  // namespace contentc
