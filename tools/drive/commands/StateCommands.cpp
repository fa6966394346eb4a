#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/BookmarkJson.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Request.h"

/// The state of the view and of the application object, and the tree of windows.
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

void tellState(Request& request) {
    if (Program::view() == nullptr) return request.fail("there is no main window");
    const ViewInspection view = Program::view()->Inspection();
    const PageAddress& address = view.navigator.Address();
    request.set("mode", modeName(view.mode));
    request.set("section", address.sectionCode);
    request.set("pageId", address.pageId);
    request.set("itemCode", address.itemCode);
    request.set("selectedSlot", view.items.Bar().Selected());
    request.set("hoveredSlot", view.items.Bar().Hovered());
    request.set("hotItem", view.items.Menu().HotItem());
    request.set("video", view.pages.Contents().video);
    request.set("molecule", view.pages.Contents().molecule);
    request.set("history", historyJson(view.navigator.Places()));
    request.set("nextCache", view.pages.Cache().NextNumber());
    request.set("oldestCache", view.pages.Cache().OldestNumber());
    request.set("startupFailed", view.startupFailed);
    const auto folder = view.bookmarks.CurrentFolderIndex();
    request.set("bookmarks", bookmarksJson(view.bookmarks));
    request.set("currentFolder", folder ? static_cast<int>(*folder) : -1);
}

void tellApp(Request& request) {
    const ProgramState& app = TheApp();
    request.set("programFolder", text(app.m_strProgramFolder));
    request.set("dataFolder", text(app.m_strDataFolder));
    request.set("bookmarkFile", text(app.m_strBookmarkFile));
    request.set("outsideInstallFolder", app.m_bOutsideInstallFolder);
    request.set("splitterPos", app.m_nSplitterPos);
    request.set("frameRect", rectangle(app.m_rcFrame));
    request.set("frameState", app.m_nFrameState);
    request.set("versions", {{"periodic", text(app.m_strVerPeriodic)},
                             {"select", text(app.m_strVerSelect)},
                             {"dataAn", text(app.m_strVerDataAn)},
                             {"molCtrl", text(app.m_strVerMolCtrl)},
                             {"zoom", text(app.m_strVerZoom)}});
}

template <void (*Tell)(Request&)>
void whenIdle(Request& request, Program&) {
    request.whenIdle(Tell);
}

constexpr Command stateTable[] = {
    {"state", 0, 0, whenIdle<tellState>},
    {"app", 0, 0, whenIdle<tellApp>},
    {"windows", 0, 0, whenIdle<[](Request& request) { request.set("windows", windowTree()); }>},
};

}  // namespace

std::span<const Command> stateCommands() { return stateTable; }

}  // namespace drive
