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
#include "tools/drive/script/KeyName.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/Request.h"

/// Mouse and keyboard.
namespace drive {

using platform::CPoint;
using platform::HWND;
using platform::Result;

namespace {

/// A point of a window's client area, and the modifier keys held while the mouse is used there.
struct Spot {
    HWND window = 0;
    CPoint point;
    Qt::KeyboardModifiers modifiers;
};

/// Reads `X Y [WINDOW] [MODIFIERS]`, beginning with the argument `first`. The request fails when these name
/// no point. No window has the name of a modifier.
std::optional<Spot> spotOf(Request& request, std::size_t first) {
    const std::optional<int> x = number<int>(request.argument(first));
    const std::optional<int> y = number<int>(request.argument(first + 1));
    std::size_t count = request.argumentCount();
    const auto modifiers = count > first + 2 ? modifiersOf(request.argument(count - 1)) : std::nullopt;
    if (modifiers) --count;
    const bool isOver = count > first + 3;
    const Result<HWND> window = chooseWindow(count > first + 2 ? &request.argument(first + 2) : nullptr);
    if (!x || !y) request.fail("X and Y are whole numbers");
    if (isOver) request.fail(request.argument(first + 3) + " is no modifier");
    if (!window) request.fail(window.failure().message);
    if (!x || !y || isOver || !window) return std::nullopt;
    return Spot{*window, {*x, *y}, modifiers.value_or(Qt::NoModifier)};
}

/// Moves to the spot and acts there with its modifiers held.
void useMouse(const Spot& spot, void (*perform)(Pointer&)) {
    Pointer& pointer = Pointer::instance();
    pointer.hold(spot.modifiers);
    pointer.moveTo(spot.window, spot.point);
    perform(pointer);
    pointer.hold(Qt::NoModifier);
}

QWidget* widgetAtPointer() { return QApplication::widgetAt(QCursor::pos()); }

struct MouseAction {
    std::string_view name;
    void (*perform)(Pointer&);
};

constexpr std::array<MouseAction, 8> mouseActions = {{
    {"move", [](Pointer&) {}},
    {"down", [](Pointer& pointer) { pointer.press(Qt::LeftButton); }},
    {"up", [](Pointer& pointer) { pointer.release(Qt::LeftButton); }},
    {"double", [](Pointer& pointer) { pointer.pressAgain(); }},
    {"rdown", [](Pointer& pointer) { pointer.press(Qt::RightButton); }},
    {"rup", [](Pointer& pointer) { pointer.release(Qt::RightButton); }},
    {"wheelup", [](Pointer& pointer) { pointer.turnWheel(1); }},
    {"wheeldown", [](Pointer& pointer) { pointer.turnWheel(-1); }},
}};

void mouse(Request& request, Program&) {
    const auto action = std::ranges::find(mouseActions, request.argument(0), &MouseAction::name);
    if (action == mouseActions.end()) return request.fail("the mouse cannot " + request.argument(0));
    const std::optional<Spot> spot = spotOf(request, 1);
    if (!spot) return;
    useMouse(*spot, action->perform);
    awaitReaction(request, &widgetAtPointer);
}

void click(Request& request, Program&) {
    const std::optional<Spot> spot = spotOf(request, 0);
    if (!spot) return;
    useMouse(*spot, [](Pointer& pointer) {
        pointer.press(Qt::LeftButton);
        pointer.release(Qt::LeftButton);
    });
    awaitReaction(request, &widgetAtPointer);
}

void key(Request& request, Program&) {
    const std::optional<KeyStroke> stroke = keyStrokeOf(request.argument(0));
    if (!stroke) return request.fail("no key is named " + request.argument(0));
    // Without a name it goes to where the keyboard is.
    const Result<HWND> window =
        request.argumentCount() == 1 ? Result<HWND>(HWND{0}) : chooseWindow(&request.argument(1));
    if (!window) return request.fail(window.failure().message);
    strikeKey(*stroke, *window);
    awaitReaction(request, &QApplication::focusWidget);
}

void type(Request& request, Program&) {
    typeText(request.argument(0));
    awaitReaction(request, &QApplication::focusWidget);
}

void focus(Request& request, Program&) {
    const Result<HWND> window = chooseWindow(&request.argument(0));
    if (!window) return request.fail(window.failure().message);
    QWidget& widget = widgetOf(*window);
    widget.activateWindow();
    widget.setFocus(Qt::OtherFocusReason);
}

std::string_view shapeName(Qt::CursorShape shape) {
    if (shape == Qt::ArrowCursor) return "arrow";
    if (shape == Qt::ForbiddenCursor) return "no";
    return shape == Qt::BitmapCursor ? "picture" : "other";
}

void cursor(Request& request, Program&) {
    const QCursor shown = Pointer::instance().cursor();
    request.set("shape", shapeName(shown.shape()));
    if (shown.shape() == Qt::BitmapCursor) request.set("hotSpot", {shown.hotSpot().x(), shown.hotSpot().y()});
}

constexpr Command inputTable[] = {
    {"mouse", 3, 5, mouse}, {"click", 2, 4, click}, {"key", 1, 2, key},
    {"type", 1, 1, type},   {"focus", 1, 1, focus}, {"cursor", 0, 0, cursor},
};

}  // namespace

std::span<const Command> inputCommands() { return inputTable; }

}  // namespace drive
