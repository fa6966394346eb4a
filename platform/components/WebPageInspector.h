#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace platform {

/// The page that a browser component shows, for code that examines the program from outside; a Component is
/// converted to it by `dynamic_cast`. Texts are code page 1253, with `?` for other characters. Operations
/// that ask the engine run the event loop until it has answered, for at most five seconds.
class WebPageInspector {
  public:
    virtual ~WebPageInspector() = default;

    /// The page's address, drive URLs in DOS form; empty when none is shown.
    virtual std::string url() const = 0;
    virtual std::string title() const = 0;
    /// The page's text as laid out, followed by that of its frames.
    virtual std::string text() = 0;
    virtual std::string html() = 0;

    /// Scrolls the page's first link with this text (blanks at its ends ignored) into view. Returns its
    /// rectangle in the component's client area, nothing when there is no such link.
    virtual std::optional<CRect> findLink(std::string_view linkText) = 0;
    /// Clicks that link with the mouse, from the event loop; false when there is none. The component is busy
    /// until the page has handled the click.
    virtual bool clickLink(std::string_view linkText) = 0;

    /// Moves the windows of embedded files (class "Plugin", children of the component's window) to where the
    /// page shows these files now.
    virtual void updatePluginWindows() = 0;
    /// The picture that the viewer in such a window gives of itself, even where it is covered: a PNG file; a
    /// video's has no control strip. Empty when there is no such window or it gives no picture.
    virtual std::string pluginPicture(HWND window) = 0;
};

}  // namespace platform
