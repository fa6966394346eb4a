#pragma once

#include <QWebEngineView>

#include "platform/windows/Geometry.h"

namespace platform {

/// The widget that shows a page: white in any colour scheme, without a context menu, and zoomed with
/// Ctrl and plus, minus or nought.
class WebView : public QWebEngineView {
    Q_OBJECT

  public:
    explicit WebView(QWidget* parent);

    /// Presses and releases the left mouse button at a point of the view, as a person would.
    void click(CPoint point);

  private:
    void addZoomKeys();
    void zoomBy(int steps);
};

}  // namespace platform
