#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/BookmarkJson.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Act.h"

/// What the program knows.
namespace drive {

using namespace kalyxo;

namespace {

const char* modeName(ContentMode mode) {
    switch (mode) {
        case ContentMode::PeriodicTable:
            return "PeriodicTable";
        case ContentMode::Page:
            return "Page";
        case ContentMode::DataAnalyser:
            return "DataAnalyser";
        case ContentMode::MainMenu:
            break;
    }
    return "MainMenu";
}

Json historyJson(const History& history) {
    Json entries = Json::array();
    for (int i = 0; i <= history.LastIndex(); ++i) {
        const PageAddress& place = history.At(i);
        entries.push_back(
            {{"section", place.sectionCode}, {"pageId", place.pageId}, {"itemCode", place.itemCode}});
    }
    return {
        {"current", history.CurrentIndex()}, {"last", history.LastIndex()}, {"entries", std::move(entries)}};
}

void tellState(Act& act) {
    if (Program::view() == nullptr) return act.fail("there is no main window");
    const ViewInspection view = Program::view()->Inspection();
    const PageAddress& address = view.navigator.Address();
    act.set("mode", modeName(view.mode));
    act.set("section", address.sectionCode);
    act.set("pageId", address.pageId);
    act.set("itemCode", address.itemCode);
    act.set("selectedSlot", view.items.Bar().Selected());
    act.set("hoveredSlot", view.items.Bar().Hovered());
    act.set("hotItem", view.items.Menu().HotItem());
    act.set("video", view.pages.Contents().video);
    act.set("molecule", view.pages.Contents().molecule);
    act.set("history", historyJson(view.navigator.Places()));
    act.set("nextCache", view.pages.Cache().NextNumber());
    act.set("oldestCache", view.pages.Cache().OldestNumber());
    act.set("startupFailed", view.startupFailed);
    const auto folder = view.bookmarks.CurrentFolderIndex();
    act.set("bookmarks", bookmarksJson(view.bookmarks));
    act.set("currentFolder", folder ? static_cast<int>(*folder) : -1);
}

void tellApp(Act& act) {
    const ProgramState& app = TheApp();
    act.set("programFolder", text(app.m_strProgramFolder));
    act.set("dataFolder", text(app.m_strDataFolder));
    act.set("bookmarkFile", text(app.m_strBookmarkFile));
    act.set("outsideInstallFolder", app.m_bOutsideInstallFolder);
    act.set("splitterPos", app.m_nSplitterPos);
    act.set("frameRect", rectangle(app.m_rcFrame));
    act.set("frameState", app.m_nFrameState);
    act.set("versions", {{"periodic", text(app.m_strVerPeriodic)},
                         {"select", text(app.m_strVerSelect)},
                         {"dataAn", text(app.m_strVerDataAn)},
                         {"molCtrl", text(app.m_strVerMolCtrl)},
                         {"zoom", text(app.m_strVerZoom)}});
}

template <void (*Tell)(Act&)>
void whenIdle(Act& act, Program&) {
    act.whenIdle(Tell);
}

constexpr Command kStateCommands[] = {
    {"state", 0, 0, whenIdle<tellState>},
    {"app", 0, 0, whenIdle<tellApp>},
    {"windows", 0, 0, whenIdle<[](Act& act) { act.set("windows", windowTree()); }>},
};

}  // namespace

std::span<const Command> stateCommands() { return kStateCommands; }

}  // namespace drive
