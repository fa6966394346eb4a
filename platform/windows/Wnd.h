#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"
#include "platform/components/Variant.h"
#include "platform/drawing/DC.h"
#include "platform/windows/CmdTarget.h"
#include "platform/windows/DrawnParts.h"

namespace platform {

class ControlLink;
class WindowWidget;

/// How a window is going to be created; a handler may change it.
struct CREATESTRUCT {
    DWORD style = 0;
    int x = 0, y = 0, cx = 0, cy = 0;  ///< outer rectangle, unless defaultPlacement
    bool defaultPlacement = true;      ///< the platform chooses position and size
};

/// A window that the program draws, or that hosts a component. The object and its window have separate lives:
/// the window is made by a Create call and ends with DestroyWindow, with its parent, or at the latest with
/// the object.
class CWnd : public CCmdTarget {
  public:
    CWnd();
    ~CWnd() override;

    const MessageMap* GetMessageMap() const override;

    /// Makes a window that this object draws, as a child of `parent`; `rect` is in the parent's client area.
    bool CreateWnd(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id);
    /// Makes a window that hosts the component of this class id (GUID text without braces). False when the
    /// class is not registered, or its module cannot be loaded or makes no component. The component's events
    /// go to `parent`.
    bool CreateControl(std::string_view classId, std::string_view name, DWORD style, const CRect& rect,
                       CWnd& parent, UINT id);
    /// Destroys the window and its children; WM_DESTROY goes first to the window, then to its children. False
    /// when there is no window.
    bool DestroyWindow();

    HWND GetSafeHwnd() const { return handle_; }
    /// The object of a window, null when the window has none, such as the windows inside a component.
    static CWnd* FromHandle(HWND window);
    CWnd* GetParent() const;
    int GetDlgCtrlID() const;

    void ShowWindow(int showCommand);
    bool IsWindowVisible() const;
    /// A disabled window takes no input.
    void EnableWindow(bool enable = true);
    /// Whether it takes input: not while it is disabled, or a modal dialog of the program keeps input from
    /// it.
    bool IsWindowEnabled() const;
    /// Moves and sizes the window: in the parent's client area, or for a top-level window its outer rectangle
    /// on the screen.
    void MoveWindow(const CRect& rect);
    /// The area inside borders, caption and menu, with its corner at (0, 0).
    CRect GetClientRect() const;
    /// The outer rectangle on the screen.
    CRect GetWindowRect() const;
    CPoint ScreenToClient(CPoint p) const;
    CPoint ClientToScreen(CPoint p) const;
    bool IsIconic() const;
    bool IsZoomed() const;

    void SetWindowText(std::string_view text);
    /// The name of the window for screen readers, if that is not its text.
    void SetAccessibleName(std::string_view name);
    std::string GetWindowText() const;
    /// The parts of the window's drawing that the user can push, for screen readers. Their indexes name the
    /// parts.
    virtual std::vector<DrawnPart> DrawnParts() const { return {}; }
    /// Called when the user of a screen reader pushes a part.
    virtual void PushDrawnPart(int) {}
    /// Called when the tabulator has moved the focus to this window.
    virtual void OnTabbedTo() {}

    /// Has the window repainted when the program is next idle.
    void Invalidate(bool erase = true);

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    void SetTimer(UINT id, int milliseconds);
    void KillTimer(UINT id);
    void SetCapture();
    static void ReleaseCapture();
    void SetFocus();

    /// Delivers a message: to the message maps, and if no map has it, to DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

  protected:
    /// Handles WM_COMMAND; true when the command was carried out. The default routes wParam as a command.
    virtual bool OnCommand(WPARAM wParam, LPARAM lParam);
    /// What the platform does with a message that no map handles.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// Calls an operation of the hosted component; nothing when it has no such operation with these
    /// arguments.
    std::optional<Variant> InvokeHelper(std::int32_t dispid, InvokeKind kind,
                                        std::span<const Variant> arguments);
    /// InvokeHelper with a result of type R; the default value of R when the call fails.
    template <class R, class... A>
    R Invoke(std::int32_t dispid, InvokeKind kind, A&&... arguments) {
        const std::array<Variant, sizeof...(A)> packed{Variant(std::forward<A>(arguments))...};
        const std::optional<Variant> result = InvokeHelper(dispid, kind, packed);
        if constexpr (!std::is_void_v<R>) {
            const R* value = result ? result->template get<R>() : nullptr;
            return value ? *value : R{};
        }
    }

    /// The bytes at a location in the hosted component's memory, valid until its next call; empty when there
    /// is no such block.
    std::span<const std::byte> ComponentBlock(std::int32_t location) const;
    /// Gives the hosted component a block for the following calls and returns its location, 0 if the
    /// component takes none. At least two blocks are kept at a time.
    std::int32_t KeepComponentBlock(std::span<const std::byte> bytes);

  private:
    friend class ControlLink;
    friend class WindowWidget;
    void moveFocusOn();

    HWND handle_ = 0;
};

/// The position of the pointer on the screen.
CPoint GetCursorPos();
/// The window at a point of the screen, null when it is no window of one of the program's objects.
CWnd* WindowFromPoint(CPoint screen);
/// The parent of a window, or the owner of a top-level window; 0 when it has none.
HWND GetParentWindow(HWND window);
/// Sends a message to any window of the window table.
LRESULT SendMessage(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

}  // namespace platform
