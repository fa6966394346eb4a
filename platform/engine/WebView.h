#pragma once

#include <QWebEngineView>

#include "platform/base/Geometry.h"
#include "platform/engine/UserPress.h"

namespace platform {

/// The widget that shows a page: white in any colour scheme, without a context menu, and zoomed with
/// Ctrl and plus, minus or nought, wherever in its window the keyboard focus is.
class WebView : public QWebEngineView {
    Q_OBJECT

  public:
    explicit WebView(QWidget* parent);
    ~WebView() override;

    /// Gives it its page, before it is shown or asked for anything else.
    void open(QWebEnginePage& page);

    /// The size of the page's text, in percent.
    int textSize() const { return textSize_; }
    /// Takes a size from 50 to 250.
    void setTextSize(int percent);

    /// The user's presses in the page.
    UserPress& presses() { return presses_; }

    /// Presses and releases the left mouse button at a point of the view, as a person would.
    void click(CPoint point);

    bool eventFilter(QObject* engineWidget, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;
    void childEvent(QChildEvent* event) override;

  private:
    void tellInFront(bool inFront);
    void watchFocus(QWidget* winner);
    void takeFocusBack();
    void passFocusOn();
    void addZoomKeys();
    void zoomBy(int steps);
    void zoomTo(int percent);

    int textSize_ = 100;
    UserPress presses_;
};

}  // namespace platform
