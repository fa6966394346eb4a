#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/base/Messages.h"

class QWidget;

namespace platform {

/// Receives the messages sent to a window.
using MessageProc = std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)>;

/// What the table knows of one window.
struct WindowEntry {
    QWidget* widget = nullptr;
    std::string className;  ///< such as "CKalyxoView" or "Edit"
    int id = 0;             ///< control id, 0 when it has none
    MessageProc proc;       ///< may be empty
};

/// The one table behind all window handles. A widget's entry goes when the widget is destroyed; a
/// handle is never given out twice in a run.
class WindowTable {
  public:
    static WindowTable& instance();

    /// Enters a widget; the handle is valid until the widget's destruction. A widget that is entered already
    /// keeps its handle and gets the new entry.
    HWND add(WindowEntry entry);
    /// Forgets a window whose widget lives on.
    void remove(HWND window);

    /// The window's entry, or null for a handle that names none.
    const WindowEntry* find(HWND window) const;
    QWidget* widget(HWND window) const;
    /// The handle of exactly this widget, 0 when it was never entered.
    HWND handleOf(const QWidget* widget) const;
    /// The handle of this widget or of its nearest entered ancestor, 0 when there is none. A dialog does not
    /// belong to its parent in this sense; a popup does.
    HWND nearestHandle(const QWidget* widget) const;
    /// All windows in the order of their creation.
    std::vector<HWND> all() const;

    /// Sends a message synchronously; 0 when the window does not exist or takes no messages.
    LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    /// Sends it when control is back in the event loop; dropped when the window is gone by then.
    void post(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

  private:
    WindowTable() = default;
    std::vector<WindowEntry> entries_;  // index = handle - 1; a removed entry has no widget
    std::unordered_map<const QWidget*, HWND> handles_;
};

}  // namespace platform
