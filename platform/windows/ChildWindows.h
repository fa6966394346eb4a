#pragma once

#include <functional>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"
#include "platform/drawing/Bitmap.h"

/// Functions on windows by their handles. Some of these windows have no object in the program: the windows
/// inside components, and the plug-ins of pages.
namespace platform {

class PageTools;

/// Calls back for each window inside `parent`, at any depth, until `callback` returns false. Before that, the
/// plug-ins of pages are moved to their current places. They come after their browser, in the order of the
/// page.
void EnumChildWindows(HWND parent, const std::function<bool(HWND)>& callback);

/// The picture that a page's plug-in gives of itself: the whole window of a molecule, a video without its
/// control strip. Not loaded when the window is no plug-in or has no picture.
CBitmap PluginPicture(HWND window);

/// What is seen of a window, with whatever lies before it in the top-level window: a picture of this size
/// from the corner of its client area. Not loaded when there is no such window.
CBitmap WindowPicture(HWND window, CSize size);

/// The tools of the page that a browser shows in this window, null when there is none.
PageTools* PageToolsIn(HWND window);

/// The client area with its corner at (0, 0); empty for an invalid handle.
CRect GetClientRect(HWND window);
/// A point of the client area in screen coordinates.
CPoint ClientToScreen(HWND window, CPoint p);

}  // namespace platform
