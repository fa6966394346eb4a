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

/// How a window is about to be created; a handler may change it.
struct CREATESTRUCT {
    DWORD style = 0;
    int x = 0, y = 0, cx = 0, cy = 0;  ///< outer rectangle; see defaultPlacement
    bool defaultPlacement = true;      ///< position and size are the platform's choice
};

/// A window: drawn by the program, or the wrapper of a hosted control. The object and its window have
/// lives of their own: the window is made by a Create call and ends with DestroyWindow, with its
/// parent, or at the latest with the object.
class CWnd : public CCmdTarget {
  public:
    CWnd();
    ~CWnd() override;

    const MessageMap* GetMessageMap() const override;

    /// Makes a window drawn by this object. Children need a parent; `rect` is in its client area.
    bool CreateWnd(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id);
    /// Makes a window that hosts the control of this class id (GUID text without braces); false when
    /// the class is not registered, its module cannot be loaded or refuses. Its events go to `parent`.
    bool CreateControl(std::string_view classId, std::string_view name, DWORD style, const CRect& rect,
                       CWnd& parent, UINT id);
    /// Destroys the window (WM_DESTROY, the window before its children); false when there is none.
    bool DestroyWindow();

    HWND GetSafeHwnd() const { return m_hWnd; }
    /// The object whose window this is, or null (also for windows of hosted controls' insides).
    static CWnd* FromHandle(HWND window);
    CWnd* GetParent() const;
    int GetDlgCtrlID() const;

    void ShowWindow(int showCommand);
    bool IsWindowVisible() const;
    /// A window that is disabled takes no input.
    void EnableWindow(bool enable = true);
    /// Moves and sizes within the parent (a top-level window: its outer rectangle on the screen).
    void MoveWindow(const CRect& rect);
    /// Area inside borders, caption and menu, with its corner at (0, 0).
    CRect GetClientRect() const;
    /// Outer rectangle on the screen.
    CRect GetWindowRect() const;
    CPoint ScreenToClient(CPoint p) const;
    CPoint ClientToScreen(CPoint p) const;
    bool IsIconic() const;
    bool IsZoomed() const;

    void SetWindowText(std::string_view text);
    /// What screen readers call the window, where it is not its text.
    void SetAccessibleName(std::string_view name);
    std::string GetWindowText() const;
    /// What the window draws that can be pushed, for screen readers; their indexes name the parts.
    virtual std::vector<DrawnPart> DrawnParts() const { return {}; }
    /// A screen reader's user pushes one of them.
    virtual void PushDrawnPart(int) {}
    /// The tabulator has come to the window itself.
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

    /// Delivers a message: the maps first, then the default treatment.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

  protected:
    /// First look at WM_COMMAND; true when it is dealt with. The default routes wParam as a command.
    virtual bool OnCommand(WPARAM wParam, LPARAM lParam);
    /// What the platform does with a message nobody handled.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// Calls an operation of the hosted control. An empty result means that the control has no such
    /// operation with these arguments.
    std::optional<Variant> InvokeHelper(std::int32_t dispid, InvokeKind kind,
                                        std::span<const Variant> arguments);
    /// InvokeHelper with the result as R; R's default value when the call fails.
    template <class R, class... A>
    R Invoke(std::int32_t dispid, InvokeKind kind, A&&... arguments) {
        const std::array<Variant, sizeof...(A)> packed{Variant(std::forward<A>(arguments))...};
        const std::optional<Variant> result = InvokeHelper(dispid, kind, packed);
        if constexpr (!std::is_void_v<R>) {
            const R* value = result ? result->template get<R>() : nullptr;
            return value ? *value : R{};
        }
    }

    /// The bytes at a location in the hosted control's memory, valid until its next call; empty when no block
    /// is there.
    std::span<const std::byte> ComponentBlock(std::int32_t location) const;
    /// Hands the hosted control a block for the calls that follow; the location to name it by, 0 when it
    /// takes none. Two blocks at least are kept at a time.
    std::int32_t KeepComponentBlock(std::span<const std::byte> bytes);

  private:
    friend class ControlLink;
    friend class WindowWidget;
    void moveFocusOn();

    HWND m_hWnd = 0;
};

/// Where the pointer is on the screen.
CPoint GetCursorPos();
/// The window under a screen point, or null when it is none of the program's own objects' windows.
CWnd* WindowFromPoint(CPoint screen);
/// The window around a window, or that a top-level one belongs to; 0 when none.
HWND GetParentWindow(HWND window);
/// Sends a message to any window of the window table.
LRESULT SendMessage(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// A cursor: one of the system's or a cursor resource.
class CCursor {
  public:
    static CCursor arrow();
    /// Tells that nothing can be done here.
    static CCursor noEntry();
    static CCursor resource(UINT id);
    /// Shows it over the window that is handling WM_SETCURSOR, else over the one that has captured the mouse,
    /// else over the one under the pointer.
    void Set() const;

  private:
    UINT id_ = 0;  // 0 = the arrow
};

/// Shows the wait cursor over all windows as long as it lives.
class CWaitCursor {
  public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

}  // namespace platform
