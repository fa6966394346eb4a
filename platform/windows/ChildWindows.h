#pragma once

#include <functional>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"
#include "platform/drawing/DC.h"

/// Windows by their handles, those that are no object of the program among them: insides of controls and the
/// plug-ins of pages.
namespace platform {

/// Calls back for each window inside `parent`, those of children included, until it is told false. The
/// plug-ins of a page that a browser inside shows are brought to their places first; they follow their
/// browser in the order of the page.
void EnumChildWindows(HWND parent, const std::function<bool(HWND)>& callback);

/// The picture that a page's plug-in gives of itself: a molecule's whole window, a video's without the
/// control strip. Not loaded when the window is no plug-in's, or it has no picture to give.
CBitmap PluginPicture(HWND window);

/// The client area with its corner at (0, 0); empty for a handle that names no window.
CRect GetClientRect(HWND window);
/// A point of the client area on the screen.
CPoint ClientToScreen(HWND window, CPoint p);

}  // namespace platform
