#include "tools/drive/desktop/PageFrame.h"

#include <QColor>
#include <QEventLoop>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <utility>

namespace drive {

namespace {

/// Reached only by a page that draws nothing any more.
constexpr std::chrono::milliseconds pictureLimit{5000};
constexpr std::chrono::milliseconds lookAgain{2};

/// Sets a variable in the page when it has drawn a new frame. The first callback comes with a frame that was
/// begun before, the second with one that shows the page as it is now.
constexpr const char* askForFrame =
    "window.frameDrawn = false;"
    "requestAnimationFrame(() => requestAnimationFrame(() => { window.frameDrawn = true; }));";

/// Separate from the page's own scripts, which must not see the variable.
constexpr auto scriptWorld = QWebEngineScript::ApplicationWorld;

/// Waits for one frame; its view owns it.
class FrameWait : public QObject {
  public:
    FrameWait(QWebEngineView& view, std::chrono::milliseconds limit, std::function<void()> done)
        : QObject(&view), page_(view.page()), done_(std::move(done)) {
        page_->runJavaScript(askForFrame, scriptWorld);
        connect(&look_, &QTimer::timeout, this, &FrameWait::look);
        look_.start(lookAgain);
        QTimer::singleShot(limit, this, &FrameWait::finish);
    }
    ~FrameWait() override { finish(); }

  private:
    void look() {
        if (!page_ || page_->isLoading()) return finish();
        page_->runJavaScript("window.frameDrawn", scriptWorld,
                             [waiting = QPointer<FrameWait>(this)](const QVariant& drawn) {
                                 if (waiting && drawn.toBool()) waiting->finish();
                             });
    }

    void finish() {
        look_.stop();
        if (const auto done = std::exchange(done_, nullptr)) {
            done();
            deleteLater();
        }
    }

    QPointer<QWebEnginePage> page_;
    std::function<void()> done_;
    QTimer look_;
};

bool isSeen(const QWebEngineView& view, const QWidget& widget, const QRect& part) {
    return view.isVisible() && part.intersects(QRect(view.mapTo(&widget, QPoint(0, 0)), view.size()));
}

/// Draws a small square of a colour in the page's corner, without changing the document.
QString scriptToMark(const QColor& colour) {
    return QStringLiteral(
               "window.frameMark = new CSSStyleSheet();"
               "window.frameMark.insertRule(':root::after { content: \"\" !important; display: block "
               "!important;"
               " position: fixed !important; left: 0 !important; top: 0 !important; width: 4px !important;"
               " height: 4px !important; background: %1 !important; z-index: 2147483647 !important }');"
               "document.adoptedStyleSheets = [...document.adoptedStyleSheets, window.frameMark];")
        .arg(colour.name());
}

constexpr QColor firstMark(0xfe, 0x01, 0xfd);
constexpr QColor otherMark(0x01, 0xfe, 0x02);
constexpr const char* unmark =
    "document.adoptedStyleSheets = document.adoptedStyleSheets.filter(sheet => sheet !== window.frameMark);";

QColor cornerOf(QWebEngineView& view) { return view.grab(QRect(0, 0, 1, 1)).toImage().pixelColor(0, 0); }

/// Runs the event loop until `reached` holds, the page loads another one, or the time limit is over.
void runUntil(QWebEngineView& view, const std::function<bool()>& reached) {
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (view.page()->isLoading() || reached()) loop.quit();
    });
    QObject::connect(&view, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(pictureLimit, &loop, &QEventLoop::quit);
    look.start(lookAgain);
    loop.exec();
}

/// Nothing reports when a frame has arrived in the widget, and on a busy machine that can take long. So a
/// mark is drawn in the page and removed again: the frame without it also shows everything sent before.
void awaitFrame(QWebEngineView& view) {
    const QPointer<QWebEngineView> shown = &view;
    const QColor mark = cornerOf(view) == firstMark ? otherMark : firstMark;
    view.page()->runJavaScript(scriptToMark(mark), scriptWorld);
    runUntil(view, [&] { return cornerOf(view) == mark; });
    if (!shown) return;
    view.page()->runJavaScript(QString::fromLatin1(unmark), scriptWorld);
    runUntil(view, [&] { return cornerOf(view) != mark; });
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
