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
    const CKalyxoView* view = Program::view();
    if (view == nullptr) return act.fail("there is no main window");
    act.set("mode", modeName(view->Mode()));
    act.set("section", view->Address().sectionCode);
    act.set("pageId", view->Address().pageId);
    act.set("itemCode", view->Address().itemCode);
    act.set("selectedSlot", view->Bar().Selected());
    act.set("hoveredSlot", view->Bar().Hovered());
    act.set("hotItem", view->Menu().HotItem());
    act.set("video", view->Contents().video);
    act.set("molecule", view->Contents().molecule);
    act.set("history", historyJson(view->Places()));
    act.set("nextCache", view->Cache().NextNumber());
    act.set("oldestCache", view->Cache().OldestNumber());
    act.set("startupFailed", view->StartupFailed());
    const auto folder = view->Bookmarks().CurrentFolderIndex();
    act.set("bookmarks", bookmarksJson(view->Bookmarks()));
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
    act.set("versions", {{"periodic", text(app.m_versions.periodic)},
                         {"select", text(app.m_versions.select)},
                         {"dataAn", text(app.m_versions.dataAn)},
                         {"molCtrl", text(app.m_versions.molCtrl)},
                         {"zoom", text(app.m_versions.zoom)}});
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
