#include "tools/contentc/markdown/PageAddresses.h"

#include "formats/PageLink.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/source/EscapeHtml.h"

namespace contentc {
namespace {

bool isOtherAddress(std::string_view name) {
    return name.starts_with("{{") || name.starts_with("#") || name.find("://") != std::string_view::npos ||
           name.starts_with("mailto:");
}

}  // namespace

std::string addressOf(const PageSource& page) {
    const bool isEntry = page.kind == PageKind::entry;
    return formats::encodePageLink(
        {page.section->code, isEntry ? page.topic : page.number, isEntry ? page.number : 0});
}

const PageSource* findPage(const TextLine& name, const PageIndex& pages, const PageSource& from,
                           Diagnostics& diagnostics) {
    const PageIndex::Found found = pages.find(platform::fromUtf8(name.text), from);
    if (!found.page && parseNumber(name.text)) {
        diagnostics.error(name.place, say::unknownPageNumber, {name.text});
    } else if (!found.page) {
        diagnostics.error(name.place, say::unknownPageName, {name.text})
            .suggestNearest(name.text, pages.titles());
    }
    if (found.isAmbiguous) diagnostics.error(name.place, say::ambiguousPageName, {name.text});
    return found.page;
}

LinkTarget linkTarget(const TextLine& name, const PageIndex& pages, const PageSource& from,
                      Diagnostics& diagnostics) {
    if (name.text.empty()) return {};
    if (isOtherAddress(name.text)) return {escapeHtml(name.text), {}};
    if (!from.section) diagnostics.error(name.place, say::linkOutsideSections);
    const PageSource* page = findPage(name, pages, from, diagnostics);
    if (!page) return {};
    return {addressOf(*page), platform::toUtf8(page->title.text)};
}

}  // namespace contentc
