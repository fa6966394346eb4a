#include <QWidget>

#include "platform/base/Resources.h"
#include "platform/framework/View.h"
#include "src/app/MainFrame.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/Request.h"

/// The main frame: its menu, its commands, its size and place.
namespace drive {

using namespace platform;
using kalyxo::CMainFrame;

namespace {

/// The frame. The request fails when there is none.
CMainFrame* frameFor(Request& request) {
    CMainFrame* frame = Program::frame();
    if (frame == nullptr) request.fail("there is no main window");
    return frame;
}

void command(Request& request, Program&) {
    CMainFrame* frame = frameFor(request);
    const std::optional<UINT> id = number<UINT>(request.argument(0));
    if (!id) return request.fail("no command number: " + request.argument(0));
    if (frame == nullptr) return;
    // Set before it runs as well, since a command that shows a dialog returns only when that is closed.
    request.set("carriedOut", frame->UpdateCommand(*id).Enabled());
    request.set("carriedOut", frame->RunCommand(*id));
}

/// Sends the message by which a component asks the view for something: the number is its second parameter.
void notify(Request& request, Program&) {
    CMainFrame* frame = frameFor(request);
    const std::optional<int> what = number<int>(request.argument(0));
    if (!what) return request.fail("no number: " + request.argument(0));
    if (frame != nullptr) frame->GetActiveView()->SendMessage(WM_COMMAND, 0, *what);
}

Json itemJson(const MenuItemState& item) {
    if (item.text.empty()) return {{"separator", true}};
    return {{"text", text(item.text)}, {"id", item.id}, {"enabled", item.enabled}, {"checked", item.checked}};
}

void menu(Request& request, Program&) {
    CMainFrame* frame = frameFor(request);
    if (frame == nullptr) return;
    Json menus = Json::array();
    Json enabled = Json::array();
    Json checked = Json::array();
    for (std::size_t i = 0; i < Resources().menu.size(); ++i) {
        Json items = Json::array();
        for (const MenuItemState& item : frame->MenuState(i)) {
            items.push_back(itemJson(item));
            if (item.enabled) enabled.push_back(item.id);
            if (item.checked) checked.push_back(item.id);
        }
        menus.push_back({{"text", text(Resources().menu[i].text)}, {"items", std::move(items)}});
    }
    request.set("menus", std::move(menus));
    request.set("enabled", std::move(enabled));
    request.set("checked", std::move(checked));
}

void tellFrame(Request& request) {
    request.whenIdle([](Request& done) {
        if (const CMainFrame* frame = Program::frame()) done.set("frame", rectangle(frame->GetWindowRect()));
    });
}

/// The arguments as whole numbers. The request fails when one is something else.
std::optional<std::vector<int>> numbersOf(Request& request) {
    std::vector<int> numbers;
    for (const std::string& word : request.argumentsFrom(0)) {
        const std::optional<int> value = number<int>(word);
        if (!value) {
            request.fail("no whole number: " + word);
            return std::nullopt;
        }
        numbers.push_back(*value);
    }
    return numbers;
}

void size(Request& request, Program&) {
    CMainFrame* frame = frameFor(request);
    const auto numbers = numbersOf(request);
    if (frame == nullptr || !numbers) return;
    const CRect now = frame->GetWindowRect();
    tellFrame(request);
    frame->MoveWindow(CRect::at(now.left, now.top, (*numbers)[0], (*numbers)[1]));
}

void place(Request& request, Program&) {
    CMainFrame* frame = frameFor(request);
    const auto numbers = numbersOf(request);
    if (frame == nullptr || !numbers) return;
    tellFrame(request);
    frame->MoveWindow({(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]});
}

/// Changes the frame's state as the buttons of its caption do. A minimised frame remembers whether it was
/// maximised.
void changeState(Request& request, Qt::WindowStates (*change)(Qt::WindowStates)) {
    CMainFrame* frame = frameFor(request);
    if (frame == nullptr) return;
    tellFrame(request);
    QWidget& widget = widgetOf(frame->GetSafeHwnd());
    widget.setWindowState(change(widget.windowState()));
}

void minimize(Request& request, Program&) {
    changeState(request, [](Qt::WindowStates state) { return state | Qt::WindowMinimized; });
}

void maximize(Request& request, Program&) {
    changeState(request, [](Qt::WindowStates state) {
        return (state & ~Qt::WindowStates(Qt::WindowMinimized)) | Qt::WindowMaximized;
    });
}

void restore(Request& request, Program&) {
    changeState(request, [](Qt::WindowStates state) {
        const auto undone = state & Qt::WindowMinimized ? Qt::WindowMinimized : Qt::WindowMaximized;
        return state & ~Qt::WindowStates(undone);
    });
}

constexpr Command frameTable[] = {
    {"command", 1, 1, command}, {"menu", 0, 0, menu},         {"size", 2, 2, size},
    {"place", 4, 4, place},     {"minimize", 0, 0, minimize}, {"maximize", 0, 0, maximize},
    {"restore", 0, 0, restore}, {"notify", 1, 1, notify},
};

}  // namespace

std::span<const Command> frameCommands() { return frameTable; }

}  // namespace drive
