#pragma once

class QWidget;
class QRect;

namespace drive {

/// Runs the event loop until the web pages that can be seen in that part of a widget have been drawn as they
/// are: the engine draws in processes of its own, some time after a page has been loaded or has changed.
void awaitPageFrames(const QWidget& widget, const QRect& part);

}  // namespace drive
