#include <QApplication>
#include <QCursor>

#include "platform/components/WebPageInspector.h"
#include "platform/text/CodePage1253.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Controls.h"
#include "tools/drive/desktop/Reaction.h"
#include "tools/drive/script/Act.h"

/// The page in the web browser. What asks the engine runs the event loop until it has answered.
namespace drive {

using platform::WebPageInspector;

namespace {

/// The browser; fails the act when there is none.
WebPageInspector* browserFor(Act& act) {
    WebPageInspector* shown = browser();
    if (shown == nullptr) act.fail("there is no web browser");
    return shown;
}

void page(Act& act, Program&) {
    const Act::Hold hold(act);
    WebPageInspector* shown = browserFor(act);
    if (shown == nullptr) return;
    act.set("url", text(shown->url()));
    act.set("title", text(shown->title()));
    act.set("text", text(shown->text()));
    act.set("html", text(shown->html()));
}

void link(Act& act, Program&) {
    const Act::Hold hold(act);
    WebPageInspector* shown = browserFor(act);
    if (shown == nullptr) return;
    if (activeDialog() != nullptr) return act.fail("a dialog stands before the page");
    if (!shown->clickLink(platform::fromUtf8(act.word(0)))) {
        return act.fail("the page has no link " + act.word(0));
    }
    awaitReaction(act, [] { return QApplication::widgetAt(QCursor::pos()); });
}

constexpr Command kPageCommands[] = {{"page", 0, 0, page}, {"link", 1, 1, link}};

}  // namespace

std::span<const Command> pageCommands() { return kPageCommands; }

}  // namespace drive
