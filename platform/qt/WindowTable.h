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
    std::string className;  ///< such as "CFrameWnd" or "Edit"
    int id = 0;             ///< control id, 0 when it has none
    MessageProc proc;       ///< may be empty
};

/// The table behind all window handles. A widget's entry is removed when the widget is destroyed. No handle
/// is given out twice in a run.
class WindowTable {
  public:
    static WindowTable& instance();

    /// Adds a widget; the handle is valid until the widget is destroyed. A widget that is in the table
    /// already keeps its handle and gets the new entry.
    HWND add(WindowEntry entry);
    /// Removes a window whose widget lives on.
    void remove(HWND window);

    /// The window's entry, or null for a handle that names none.
    const WindowEntry* find(HWND window) const;
    QWidget* widget(HWND window) const;
    /// The handle of exactly this widget, 0 when it is not in the table.
    HWND handleOf(const QWidget* widget) const;
    /// The handle of this widget, or of its nearest ancestor that is in the table; 0 when there is none. The
    /// search goes from a popup to its parent, but not from any other top-level window.
    HWND nearestHandle(const QWidget* widget) const;
    /// All windows in the order of their creation.
    std::vector<HWND> all() const;

    /// Sends a message and waits for the result; 0 when the window does not exist or handles no messages.
    LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    /// Sends a message later, from the event loop; not if the window is gone by then.
    void post(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

  private:
    WindowTable() = default;
    std::vector<WindowEntry> entries_;  // index = handle - 1; a removed entry has no widget
    std::unordered_map<const QWidget*, HWND> handles_;
};

}  // namespace platform
