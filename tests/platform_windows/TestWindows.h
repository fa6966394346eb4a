#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/windows/Wnd.h"

/// Windows that tell what they receive.
namespace windows_test {

/// What happened, as texts like "view WM_SIZE 0 640x460".
class Log {
  public:
    static Log& instance();
    void add(std::string line) { lines_.push_back(std::move(line)); }
    void clear() { lines_.clear(); }
    /// The lines since the last clear that have one of the messages (all lines when none is given), without
    /// WM_SETCURSOR unless asked for.
    std::vector<std::string> lines(std::initializer_list<std::string_view> messages = {}) const;
    std::size_t count(std::string_view text) const;

  private:
    std::vector<std::string> lines_;
};

std::string describe(platform::UINT message, platform::WPARAM wParam, platform::LPARAM lParam);

/// A window class that logs its messages under its name, and can be told what to do with them.
template <class Base>
class Logged : public Base {
  public:
    using Base::Base;
    std::string name = "window";
    /// Looks at a message first; a value is the message's result.
    std::function<std::optional<platform::LRESULT>(platform::UINT, platform::WPARAM, platform::LPARAM)> hook;

    platform::LRESULT WindowProc(platform::UINT message, platform::WPARAM wParam,
                                 platform::LPARAM lParam) override {
        Log::instance().add(name + " " + describe(message, wParam, lParam));
        const auto result = hook ? hook(message, wParam, lParam) : std::nullopt;
        return result ? *result : Base::WindowProc(message, wParam, lParam);
    }
};

/// A child window of its own class.
class TestWnd : public Logged<platform::CWnd> {
  public:
    static constexpr platform::CRuntimeClass runtimeClass{"TestWnd"};
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
};

/// Lets the program run until nothing is waiting any more.
void settle();
/// The same for at least so many milliseconds.
void settleFor(int milliseconds);

QWidget& widgetOf(const platform::CWnd& window);
/// The colour that a window shows at a point of its client area, as RRGGBB.
std::string shownColour(const platform::CWnd& window, int x, int y);

}  // namespace windows_test
