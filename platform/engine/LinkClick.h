#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <functional>

class QWebEnginePage;

namespace platform {

/// A click in a page, watched until the page has handled it. By then the page has also asked for what it
/// wants in answer. The engine may lose a click, as before a page's first picture; such a click is made
/// again.
class LinkClick : public QObject {
  public:
    /// `click` makes the click; it is called from the event loop. The page must outlive this.
    LinkClick(QWebEnginePage& page, std::function<void()> click);

    /// Whether the page has not handled it yet.
    bool pending() const { return tries_ > 0; }

  private:
    void arm();
    void tryOnce();
    void look();

    QWebEnginePage& page_;
    std::function<void()> click_;
    int tries_;
    QDeadlineTimer limit_;  // of the click that is on its way
};

}  // namespace platform
