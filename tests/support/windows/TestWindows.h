#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/windows/Wnd.h"

/// Windows that log the messages they receive.
namespace windows_test {

using Lines = std::vector<std::string>;

/// The messages received, as texts like "view WM_SIZE 0 640x460".
class Log {
  public:
    static Log& instance();
    void add(std::string line) { lines_.push_back(std::move(line)); }
    void clear() { lines_.clear(); }
    /// The lines since the last clear that have one of the messages, or all lines if none is given.
    /// WM_SETCURSOR is left out unless it is asked for.
    Lines lines(std::initializer_list<std::string_view> messages = {}) const;
    std::size_t count(std::string_view text) const;

  private:
    Lines lines_;
};

std::string describe(platform::UINT message, platform::WPARAM wParam, platform::LPARAM lParam);

/// A window class that logs its messages under its name, and whose reactions a test can choose.
template <class Base>
class Logged : public Base {
  public:
    using Base::Base;
    std::string name = "window";
    /// From now on calls the function first for this message, and returns the result if one is given.
    void on(platform::UINT message, std::function<void(platform::WPARAM)> act,
            std::optional<platform::LRESULT> result = {}) {
        message_ = message;
        act_ = std::move(act);
        result_ = result;
    }

    platform::LRESULT WindowProc(platform::UINT message, platform::WPARAM wParam,
                                 platform::LPARAM lParam) override {
        Log::instance().add(name + " " + describe(message, wParam, lParam));
        if (message == message_ && act_) act_(wParam);
        if (message == message_ && result_) return *result_;
        return Base::WindowProc(message, wParam, lParam);
    }

  private:
    platform::UINT message_ = 0;
    std::function<void(platform::WPARAM)> act_;
    std::optional<platform::LRESULT> result_;
};

/// A child window of its own class.
class TestWnd : public Logged<platform::CWnd> {
  public:
    static constexpr platform::CRuntimeClass runtimeClass{"TestWnd"};
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
};

/// Runs the program until no event is waiting.
void settle();
/// The same for at least so many milliseconds.
void settleFor(int milliseconds);

QWidget& widgetOf(const platform::CWnd& window);
/// The colour of a window at a point of its client area, as RRGGBB.
std::string shownColour(const platform::CWnd& window, int x, int y);

}  // namespace windows_test
