#pragma once

namespace platform {

class SurfaceWidget;

/// Schedules the window's paint messages. They are delivered after pending input and size messages and before
/// Qt paints next, but never during a paint event, where a handler could not move other windows.
void schedulePaint(SurfaceWidget& widget);

/// Delivers all scheduled paint messages now.
void deliverScheduledPaints();

}  // namespace platform
