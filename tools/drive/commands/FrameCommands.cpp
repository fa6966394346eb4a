#include <QWidget>

#include "platform/base/Resources.h"
#include "platform/framework/View.h"
#include "src/app/MainFrame.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/Numbers.h"

/// The main frame: its menu, its commands, its place.
namespace drive {

using namespace platform;
using kalyxo::CMainFrame;

namespace {

/// The frame; fails the act when there is none.
CMainFrame* frameFor(Act& act) {
    CMainFrame* frame = Program::frame();
    if (frame == nullptr) act.fail("there is no main window");
    return frame;
}

void command(Act& act, Program&) {
    CMainFrame* frame = frameFor(act);
    const std::optional<UINT> id = number<UINT>(act.word(0));
    if (!id) return act.fail("no command number: " + act.word(0));
    if (frame == nullptr) return;
    // Told before it runs: a command that shows a dialog returns when that is closed.
    act.set("carriedOut", frame->UpdateCommand(*id).Enabled());
    act.set("carriedOut", frame->RunCommand(*id));
}

/// As a component does: the view looks at the second parameter of the command message.
void notify(Act& act, Program&) {
    CMainFrame* frame = frameFor(act);
    const std::optional<int> what = number<int>(act.word(0));
    if (!what) return act.fail("no number: " + act.word(0));
    if (frame != nullptr) frame->GetActiveView()->SendMessage(WM_COMMAND, 0, *what);
}

Json itemJson(const MenuItemState& item) {
    if (item.text.empty()) return {{"separator", true}};
    return {{"text", text(item.text)}, {"id", item.id}, {"enabled", item.enabled}, {"checked", item.checked}};
}

void menu(Act& act, Program&) {
    CMainFrame* frame = frameFor(act);
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
    act.set("menus", std::move(menus));
    act.set("enabled", std::move(enabled));
    act.set("checked", std::move(checked));
}

void tellFrame(Act& act) {
    act.whenIdle([](Act& done) {
        if (const CMainFrame* frame = Program::frame()) done.set("frame", rectangle(frame->GetWindowRect()));
    });
}

/// The arguments as whole numbers; fails the act when they are none.
std::optional<std::vector<int>> numbersOf(Act& act) {
    std::vector<int> numbers;
    for (const std::string& word : act.wordsFrom(0)) {
        const std::optional<int> value = number<int>(word);
        if (!value) {
            act.fail("no whole number: " + word);
            return std::nullopt;
        }
        numbers.push_back(*value);
    }
    return numbers;
}

void size(Act& act, Program&) {
    CMainFrame* frame = frameFor(act);
    const auto numbers = numbersOf(act);
    if (frame == nullptr || !numbers) return;
    const CRect now = frame->GetWindowRect();
    tellFrame(act);
    frame->MoveWindow(CRect::at(now.left, now.top, (*numbers)[0], (*numbers)[1]));
}

void place(Act& act, Program&) {
    CMainFrame* frame = frameFor(act);
    const auto numbers = numbersOf(act);
    if (frame == nullptr || !numbers) return;
    tellFrame(act);
    frame->MoveWindow({(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]});
}

/// As the buttons of the caption do it: what is minimised keeps in mind whether it was maximised.
void changeState(Act& act, Qt::WindowStates (*change)(Qt::WindowStates)) {
    CMainFrame* frame = frameFor(act);
    if (frame == nullptr) return;
    tellFrame(act);
    QWidget& widget = widgetOf(frame->GetSafeHwnd());
    widget.setWindowState(change(widget.windowState()));
}

void minimize(Act& act, Program&) {
    changeState(act, [](Qt::WindowStates state) { return state | Qt::WindowMinimized; });
}

void maximize(Act& act, Program&) {
    changeState(act, [](Qt::WindowStates state) {
        return (state & ~Qt::WindowStates(Qt::WindowMinimized)) | Qt::WindowMaximized;
    });
}

void restore(Act& act, Program&) {
    changeState(act, [](Qt::WindowStates state) {
        const auto undone = state & Qt::WindowMinimized ? Qt::WindowMinimized : Qt::WindowMaximized;
        return state & ~Qt::WindowStates(undone);
    });
}

constexpr Command kFrameCommands[] = {
    {"command", 1, 1, command}, {"menu", 0, 0, menu},         {"size", 2, 2, size},
    {"place", 4, 4, place},     {"minimize", 0, 0, minimize}, {"maximize", 0, 0, maximize},
    {"restore", 0, 0, restore}, {"notify", 1, 1, notify},
};

}  // namespace

std::span<const Command> frameCommands() { return kFrameCommands; }

}  // namespace drive
