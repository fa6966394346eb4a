#pragma once

namespace platform {

class SurfaceWidget;

/// Has the window's paint messages delivered after the input and size messages that are on their way, and
/// before Qt next paints: never inside of a paint event, where a handler could not move other windows.
void schedulePaint(SurfaceWidget& widget);

/// Delivers what is scheduled now.
void deliverScheduledPaints();

}  // namespace platform
