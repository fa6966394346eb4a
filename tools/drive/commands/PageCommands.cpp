#include <QApplication>
#include <QCursor>

#include "platform/components/WebPageInspector.h"
#include "platform/text/CodePage1253.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Components.h"
#include "tools/drive/desktop/Reaction.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Request.h"

/// The page in the web browser. Questions to the engine run the event loop until it has answered.
namespace drive {

using platform::WebPageInspector;

namespace {

/// The browser. The request fails when there is none.
WebPageInspector* browserFor(Request& request) {
    WebPageInspector* shown = browser();
    if (shown == nullptr) request.fail("there is no web browser");
    return shown;
}

void page(Request& request, Program&) {
    const Request::Hold hold(request);
    WebPageInspector* shown = browserFor(request);
    if (shown == nullptr) return;
    request.set("url", text(shown->url()));
    request.set("title", text(shown->title()));
    request.set("text", text(shown->text()));
    request.set("html", text(shown->html()));
}

void link(Request& request, Program&) {
    const Request::Hold hold(request);
    WebPageInspector* shown = browserFor(request);
    if (shown == nullptr) return;
    if (activeDialog() != nullptr) return request.fail("a dialog stands before the page");
    if (!shown->clickLink(platform::fromUtf8(request.argument(0)))) {
        return request.fail("the page has no link " + request.argument(0));
    }
    awaitReaction(request, [] { return QApplication::widgetAt(QCursor::pos()); });
}

constexpr Command pageTable[] = {{"page", 0, 0, page}, {"link", 1, 1, link}};

}  // namespace

std::span<const Command> pageCommands() { return pageTable; }

}  // namespace drive
