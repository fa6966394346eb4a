#pragma once

#include <QWebEngineView>
#include <chrono>
#include <functional>

namespace drive {

/// The web page that the widget shows or is part of, null if there is none.
QWebEngineView* pageAround(QWidget* widget);

/// The engine draws in processes of its own. Calls `done` when the page has drawn a frame that shows the
/// effect of all scripts and events sent to it before, when it loads another page, or when the time limit is
/// over.
void afterNextFrame(QWebEngineView& view, std::chrono::milliseconds limit, std::function<void()> done);

/// Runs the event loop until the visible pages in `part` of the widget are drawn as they are now.
void awaitFrames(const QWidget& widget, const QRect& part);

}  // namespace drive
