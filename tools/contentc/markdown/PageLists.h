#pragma once

#include <string>
#include <vector>

#include "tools/contentc/markdown/PageRelations.h"

namespace contentc {

/// Lists of links to pages, as HTML in UTF-8 line by line. A list without pages has no lines.
using HtmlList = std::vector<std::string>;

/// The topics of the page's section, or the entries of the page, each with its summary. With a heading unless
/// the author has put the list into the text.
enum class ListHeading { none, own };
HtmlList topicList(const Content& content, const PageSource& page, ListHeading heading);
HtmlList entryList(const Content& content, const PageSource& page, ListHeading heading);

/// The pages for a school year, in the order of the chapters. The year is a position in `schoolYears()`.
HtmlList schoolYearList(const Content& content, std::size_t year);

/// The pages with a year, in the order of time.
HtmlList timeLine(const Content& content);

/// What stands at the foot of a page: what it builds on, what builds on it, what else to see, and its
/// neighbours.
HtmlList pageFoot(const PageSource& page, const PageRelation& relation);

}  // namespace contentc
