#pragma once

#include <string>

#include "tools/contentc/source/PageIndex.h"

namespace contentc {

/// Where a link leads.
struct LinkTarget {
    /// As it is written in an attribute; empty when the page does not exist.
    std::string address;
    /// The title of a page in UTF-8; empty for other addresses.
    std::string title;
};

/// The address of a page, by which the program opens it with list and history.
std::string addressOf(const PageSource& page);

/// The page with a number or title in UTF-8. Null when there is none, which is reported, as is a title that
/// several pages have.
const PageSource* findPage(const TextLine& name, const PageIndex& pages, const PageSource& from,
                           Diagnostics& diagnostics);

/// The target of a link that names a page by number or title, or is an address of the web, of a mark `{{…}}`
/// or of a place on the page (`#name`). A page that does not exist and a title that several pages have are
/// reported.
LinkTarget linkTarget(const TextLine& name, const PageIndex& pages, const PageSource& from,
                      Diagnostics& diagnostics);

}  // namespace contentc
