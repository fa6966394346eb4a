#include <QApplication>
#include <QCursor>
#include <QWidget>
#include <algorithm>
#include <array>

#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Keyboard.h"
#include "tools/drive/desktop/Pointer.h"
#include "tools/drive/desktop/Reaction.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/Numbers.h"

/// Mouse and keyboard.
namespace drive {

using platform::CPoint;
using platform::HWND;

namespace {

/// A point of a window's client area.
struct Spot {
    HWND window = 0;
    CPoint point;
};

/// Reads `X Y [WINDOW]` from an argument on; fails the act when that is no spot.
std::optional<Spot> spotOf(Act& act, std::size_t first) {
    const std::optional<int> x = number<int>(act.word(first));
    const std::optional<int> y = number<int>(act.word(first + 1));
    const WindowChoice choice = chooseWindow(act.count() > first + 2 ? &act.word(first + 2) : nullptr);
    if (!x || !y) act.fail("X and Y are whole numbers");
    if (!choice.error.empty()) act.fail(choice.error);
    if (!x || !y || choice.window == 0) return std::nullopt;
    return Spot{choice.window, {*x, *y}};
}

QWidget* widgetAtPointer() { return QApplication::widgetAt(QCursor::pos()); }

struct MouseAction {
    std::string_view name;
    void (*perform)(Pointer&);
};

constexpr std::array<MouseAction, 8> kMouseActions = {{
    {"move", [](Pointer&) {}},
    {"down", [](Pointer& pointer) { pointer.press(Qt::LeftButton); }},
    {"up", [](Pointer& pointer) { pointer.release(Qt::LeftButton); }},
    {"double", [](Pointer& pointer) { pointer.pressAgain(); }},
    {"rdown", [](Pointer& pointer) { pointer.press(Qt::RightButton); }},
    {"rup", [](Pointer& pointer) { pointer.release(Qt::RightButton); }},
    {"wheelup", [](Pointer& pointer) { pointer.turnWheel(1); }},
    {"wheeldown", [](Pointer& pointer) { pointer.turnWheel(-1); }},
}};

void mouse(Act& act, Program&) {
    const auto action = std::ranges::find(kMouseActions, act.word(0), &MouseAction::name);
    if (action == kMouseActions.end()) return act.fail("the mouse cannot " + act.word(0));
    const std::optional<Spot> spot = spotOf(act, 1);
    if (!spot) return;
    Pointer::instance().moveTo(spot->window, spot->point);
    action->perform(Pointer::instance());
    awaitReaction(act, &widgetAtPointer);
}

void click(Act& act, Program&) {
    const std::optional<Spot> spot = spotOf(act, 0);
    if (!spot) return;
    Pointer& pointer = Pointer::instance();
    pointer.moveTo(spot->window, spot->point);
    pointer.press(Qt::LeftButton);
    pointer.release(Qt::LeftButton);
    awaitReaction(act, &widgetAtPointer);
}

void key(Act& act, Program&) {
    const std::optional<KeyStroke> stroke = keyStrokeOf(act.word(0));
    if (!stroke) return act.fail("no key is named " + act.word(0));
    const WindowChoice choice = act.count() == 1 ? WindowChoice() : chooseWindow(&act.word(1));
    if (!choice.error.empty()) return act.fail(choice.error);
    strikeKey(*stroke, choice.window);
    awaitReaction(act, &QApplication::focusWidget);
}

void type(Act& act, Program&) {
    typeText(act.word(0));
    awaitReaction(act, &QApplication::focusWidget);
}

void focus(Act& act, Program&) {
    const WindowChoice choice = chooseWindow(&act.word(0));
    if (choice.window == 0) return act.fail(choice.error);
    QWidget& widget = widgetOf(choice.window);
    widget.activateWindow();
    widget.setFocus(Qt::OtherFocusReason);
}

std::string_view shapeName(Qt::CursorShape shape) {
    if (shape == Qt::ArrowCursor) return "arrow";
    if (shape == Qt::ForbiddenCursor) return "no";
    return shape == Qt::BitmapCursor ? "picture" : "other";
}

void cursor(Act& act, Program&) {
    const QCursor shown = Pointer::instance().cursor();
    act.set("shape", shapeName(shown.shape()));
    if (shown.shape() == Qt::BitmapCursor) act.set("hotSpot", {shown.hotSpot().x(), shown.hotSpot().y()});
}

constexpr Command kInputCommands[] = {
    {"mouse", 3, 4, mouse}, {"click", 2, 3, click}, {"key", 1, 2, key},
    {"type", 1, 1, type},   {"focus", 1, 1, focus}, {"cursor", 0, 0, cursor},
};

}  // namespace

std::span<const Command> inputCommands() { return kInputCommands; }

}  // namespace drive
