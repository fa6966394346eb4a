#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace platform {

/// What a browser control shows, for whoever looks at it from outside; reached from a Component by
/// `dynamic_cast`. Texts are code page 1253, with `?` for what that cannot write. Operations that ask the
/// engine run the event loop until it has answered, five seconds at most.
class WebPageInspector {
  public:
    virtual ~WebPageInspector() = default;

    /// The page's address, drive URLs in DOS form; empty when none is shown.
    virtual std::string url() const = 0;
    virtual std::string title() const = 0;
    /// The page's text as laid out, followed by that of its frames.
    virtual std::string text() = 0;
    virtual std::string html() = 0;

    /// Scrolls the page's first link with this text (blanks at its ends apart) into view; its rectangle in
    /// the control's client area, nothing when there is none.
    virtual std::optional<CRect> findLink(std::string_view linkText) = 0;
    /// Clicks that link with the mouse, in a moment; false when there is none. The control is busy until the
    /// page has handled it.
    virtual bool clickLink(std::string_view linkText) = 0;

    /// Brings the windows of the frames that embedded files are shown in (class "Plugin", children of the
    /// control's window) to where the page has laid them out now.
    virtual void updatePluginWindows() = 0;
    /// The picture that the viewer in such a window gives of itself, whatever covers it: a PNG file; of a
    /// video without its control strip. Empty when the window is none or has no picture.
    virtual std::string pluginPicture(HWND window) = 0;
};

}  // namespace platform
