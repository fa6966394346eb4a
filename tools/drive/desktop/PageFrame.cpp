#include "tools/drive/desktop/PageFrame.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <utility>

namespace drive {

namespace {

constexpr std::chrono::milliseconds kPictureLimit{1000};
constexpr std::chrono::milliseconds kLookAgain{2};
/// From the moment at which the engine starts on a frame to that at which the widget has it.
constexpr std::chrono::milliseconds kOnItsWay{40};

/// Asks for a note when the engine draws the page anew: the first call back comes with the frame that was in
/// the works already, the second with one that shows all that is there now.
constexpr const char* kAskForFrame =
    "window.frameDrawn = false;"
    "requestAnimationFrame(() => requestAnimationFrame(() => { window.frameDrawn = true; }));";

/// Not the page's own world, in which its scripts would see the note.
constexpr auto kWorld = QWebEngineScript::ApplicationWorld;

/// Waits for one frame; its view owns it.
class FrameWait : public QObject {
  public:
    FrameWait(QWebEngineView& view, std::chrono::milliseconds limit, std::function<void()> done)
        : QObject(&view), m_page(view.page()), m_done(std::move(done)) {
        m_page->runJavaScript(kAskForFrame, kWorld);
        connect(&m_look, &QTimer::timeout, this, &FrameWait::look);
        m_look.start(kLookAgain);
        QTimer::singleShot(limit, this, &FrameWait::finish);
    }
    ~FrameWait() override { finish(); }

  private:
    void look() {
        if (!m_page || m_page->isLoading()) return finish();
        m_page->runJavaScript("window.frameDrawn", kWorld,
                              [waiting = QPointer<FrameWait>(this)](const QVariant& drawn) {
                                  if (waiting && drawn.toBool()) waiting->finish();
                              });
    }

    void finish() {
        m_look.stop();
        if (const auto done = std::exchange(m_done, nullptr)) {
            done();
            deleteLater();
        }
    }

    QPointer<QWebEnginePage> m_page;
    std::function<void()> m_done;
    QTimer m_look;
};

bool isSeen(const QWebEngineView& view, const QWidget& widget, const QRect& part) {
    return view.isVisible() && part.intersects(QRect(view.mapTo(&widget, QPoint(0, 0)), view.size()));
}

void awaitFrame(QWebEngineView& view) {
    QEventLoop loop;
    const QPointer<QEventLoop> waiting = &loop;
    afterNextFrame(view, kPictureLimit, [waiting] {
        if (waiting) QTimer::singleShot(kOnItsWay, waiting, &QEventLoop::quit);
    });
    loop.exec();
}

}  // namespace

QWebEngineView* pageAround(QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (auto* view = qobject_cast<QWebEngineView*>(widget)) return view;
    }
    return nullptr;
}

void afterNextFrame(QWebEngineView& view, std::chrono::milliseconds limit, std::function<void()> done) {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the view owns it
    new FrameWait(view, limit, std::move(done));
}

void awaitFrames(const QWidget& widget, const QRect& part) {
    for (QWebEngineView* view : widget.findChildren<QWebEngineView*>()) {
        if (isSeen(*view, widget, part)) awaitFrame(*view);
    }
}

}  // namespace drive
