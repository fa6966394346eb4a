#include "tools/drive/PageFrames.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>
#include <QWidget>

namespace drive {

namespace {

/// A page that does not draw within this time has nothing new to show.
constexpr int kPatienceMs = 1000;
constexpr int kLookAgainMs = 2;
/// From the moment at which the engine starts on a frame to that at which the widget has it.
constexpr int kFrameOnItsWayMs = 40;

/// Asks for a note when the engine has drawn the page anew; the first call back comes before the frame that
/// was already in the works, the second before one that shows all that is there now.
constexpr const char* kAskForFrame =
    "window.frameDrawn = false;"
    "requestAnimationFrame(() => requestAnimationFrame(() => { window.frameDrawn = true; }));";

/// Not the page's own world, in which its scripts would see the note.
constexpr auto kWorld = QWebEngineScript::ApplicationWorld;

bool isSeen(const QWebEngineView& view, const QWidget& widget, const QRect& part) {
    return view.isVisible() && part.intersects(QRect(view.mapTo(&widget, QPoint(0, 0)), view.size()));
}

void awaitFrame(QWebEngineView& view) {
    QEventLoop loop;
    QTimer look;
    const QPointer<QWebEnginePage> page = view.page();
    // Answers may come when this function has long returned, so they hold no reference to it.
    const QPointer<QEventLoop> waiting = &loop;
    page->runJavaScript(kAskForFrame, kWorld);
    QObject::connect(&look, &QTimer::timeout, &loop, [page, waiting] {
        if (!page) return waiting->quit();
        page->runJavaScript("window.frameDrawn", kWorld, [waiting](const QVariant& drawn) {
            if (waiting && drawn.toBool()) QTimer::singleShot(kFrameOnItsWayMs, waiting, &QEventLoop::quit);
        });
    });
    look.start(kLookAgainMs);
    QTimer::singleShot(kPatienceMs, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace

void awaitPageFrames(const QWidget& widget, const QRect& part) {
    for (QWebEngineView* view : widget.findChildren<QWebEngineView*>()) {
        if (isSeen(*view, widget, part)) awaitFrame(*view);
    }
}

}  // namespace drive
