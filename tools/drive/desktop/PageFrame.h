#pragma once

#include <QWebEngineView>
#include <chrono>
#include <functional>

namespace drive {

/// The web page that this widget shows or is part of, null when it is none.
QWebEngineView* pageAround(QWidget* widget);

/// Calls `done` when the page has drawn a frame in which all that it was told and sent before shows: the
/// engine works in processes of its own. When the page goes on to another, draws nothing or is slow, `done`
/// is called then, or when the time is over.
void afterNextFrame(QWebEngineView& view, std::chrono::milliseconds limit, std::function<void()> done);

/// Runs the event loop until the pages that can be seen in that part of a widget are drawn as they are now.
void awaitFrames(const QWidget& widget, const QRect& part);

}  // namespace drive
