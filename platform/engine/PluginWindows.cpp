#include "platform/engine/PluginWindows.h"

#include <QEvent>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QWidget>
#include <algorithm>
#include <chrono>

namespace platform {

namespace {

constexpr std::chrono::seconds waitForPicture{2};

std::unique_ptr<QWidget> makeWindow(QWidget& view) {
    auto window = std::make_unique<QWidget>(&view);
    window->setAttribute(Qt::WA_TransparentForMouseEvents);
    window->setAttribute(Qt::WA_NoSystemBackground);
    window->setFocusPolicy(Qt::NoFocus);
    WindowTable::instance().add({window.get(), PluginWindows::className, 0, nullptr});
    return window;
}

}  // namespace

PluginWindows::PluginWindows(QWebEngineView& view, QWebEnginePage& page) : view_(view), page_(&page) {
    limit_.setSingleShot(true);
    limit_.setInterval(waitForPicture);
    view.installEventFilter(this);
    connect(&page, &QWebEnginePage::loadStarted, this, &PluginWindows::clear);
    connect(&page, &QWebEnginePage::loadFinished, this, &PluginWindows::updateSoon);
    connect(&page, &QWebEnginePage::contentsSizeChanged, this, &PluginWindows::updateSoon);
    connect(&page, &QWebEnginePage::scrollPositionChanged, this, &PluginWindows::updateSoon);
}

PluginWindows::~PluginWindows() = default;

bool PluginWindows::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize) updateSoon();
    return false;
}

void PluginWindows::clear() { windows_.clear(); }

void PluginWindows::updateSoon() {
    // A page that was never loaded answers nothing.
    if (!page_ || page_->isLoading() || page_->url().isEmpty()) return;
    limit_.start();
    askEmbeddedFramesOf(*page_, [self = QPointer(this), asked = ++asked_](const auto& frames) {
        if (!self || self->asked_ != asked) return;
        self->limit_.stop();
        self->place(frames);
    });
}

void PluginWindows::update() {
    if (!page_ || page_->isLoading()) return;
    const QPointer<PluginWindows> alive(this);
    const auto frames = embeddedFramesOf(*page_);
    if (alive) place(frames);
}

void PluginWindows::place(const std::vector<EmbeddedFrame>& frames) {
    std::erase_if(windows_, [&](const auto& window) {
        return std::ranges::none_of(frames,
                                    [&](const EmbeddedFrame& frame) { return frame.number == window.first; });
    });
    for (const EmbeddedFrame& frame : frames) {
        auto& window = windows_[frame.number];
        if (!window) window = makeWindow(view_);
        window->setGeometry(frame.place.left, frame.place.top, frame.size.cx, frame.size.cy);
        window->show();
    }
}

QByteArray PluginWindows::picture(HWND window) {
    QWidget* const widget = WindowTable::instance().widget(window);
    const auto found =
        std::ranges::find_if(windows_, [&](const auto& one) { return one.second.get() == widget; });
    if (!page_ || !widget || found == windows_.end()) return {};
    return pictureOfEmbedded(*page_, found->first);
}

}  // namespace platform
