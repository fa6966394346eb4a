#include "tools/contentc/markdown/PageAddresses.h"

#include "formats/PageLink.h"
#include "platform/text/CodePage1253.h"
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

LinkTarget linkTarget(const TextLine& name, const PageIndex& pages, const PageSource& from,
                      Diagnostics& diagnostics) {
    if (isOtherAddress(name.text)) return {escapeHtml(name.text), {}};
    const PageIndex::Found found = pages.find(platform::fromUtf8(name.text), from);
    if (!found.page) {
        diagnostics.error(name.place, "no page is called '" + name.text + '\'');
        return {};
    }
    if (found.isAmbiguous)
        diagnostics.error(name.place, "several pages are called '" + name.text + "'; write the number");
    return {addressOf(*found.page), platform::toUtf8(found.page->title.text)};
}

}  // namespace contentc
