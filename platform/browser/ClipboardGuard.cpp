#include "platform/browser/ClipboardGuard.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QWebEngineView>
#include <chrono>
#include <utility>

namespace platform {

namespace {

/// Longer than the engine takes a page's script for the answer to a press.
constexpr std::chrono::seconds timeForAnswer{7};
/// How long the engine may take to copy.
constexpr std::chrono::seconds copyTime{1};

constexpr auto pngType = QLatin1StringView("image/png");

bool isPress(const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::TouchBegin:
        case QEvent::TouchEnd:
            return true;
        default:
            return false;
    }
}

/// Whether this program has written the clipboard. Qt's platforms without a screen do not tell, and know no
/// other program.
bool isOwnWrite() {
    return QApplication::clipboard()->ownsClipboard() ||
           QApplication::platformName() == QLatin1StringView("offscreen");
}

/// Whether the widget is the engine's, below the view of a page.
bool isInPage(const QWidget& widget) {
    const QWidget* one = &widget;
    while (one && !qobject_cast<const QWebEngineView*>(one)) one = one->parentWidget();
    return one != nullptr;
}

bool copies(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Cut);
}

}  // namespace

ClipboardGuard& ClipboardGuard::instance() {
    static ClipboardGuard guard;
    return guard;
}

ClipboardGuard::ClipboardGuard() {
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &ClipboardGuard::changed);
}

ClipboardGuard::~ClipboardGuard() = default;

void ClipboardGuard::see(const QEvent& event) {
    if (!isPress(event)) return;
    if (!kept_) keepContent();
    pageMayWrite_.setRemainingTime(timeForAnswer);
    if (copies(event)) expectCopy();
}

void ClipboardGuard::expectCopy() { userCopies_.setRemainingTime(copyTime); }

void ClipboardGuard::keepContent() {
    kept_ = std::make_unique<QMimeData>();
    const QMimeData* const content = QApplication::clipboard()->mimeData();
    if (!content) return;
    // Each costs a question to the program that the content comes from.
    if (content->hasText()) kept_->setText(content->text());
    if (content->hasHtml()) kept_->setHtml(content->html());
    const QString png(pngType);
    if (content->hasFormat(png)) kept_->setData(png, content->data(png));
    // Shared and not copied where it comes from this program.
    if (isOwnWrite() && content->hasImage()) kept_->setImageData(content->imageData());
}

void ClipboardGuard::changed() {
    if (isPagesWrite()) {
        putBack();
    } else {
        kept_.reset();
    }
}

bool ClipboardGuard::isPagesWrite() const {
    if (!kept_ || pageMayWrite_.hasExpired() || !userCopies_.hasExpired() || !isOwnWrite()) return false;
    // Other parts of the program copy on their own, when the focus is there; and a page cannot copy a picture
    // alone.
    const QWidget* const focus = QApplication::focusWidget();
    const QMimeData* const content = QApplication::clipboard()->mimeData();
    return (!focus || isInPage(*focus)) && content && (content->hasText() || !content->hasImage());
}

void ClipboardGuard::putBack() {
    if (!std::exchange(told_, true)) qWarning("A page wrote the clipboard; it has its former content again.");
    QClipboard& clipboard = *QApplication::clipboard();
    // Taken first: what is put back is a change too.
    std::unique_ptr<QMimeData> former = std::move(kept_);
    if (former->formats().isEmpty()) {
        clipboard.clear();
    } else {
        clipboard.setMimeData(former.release());
    }
    keepContent();
}

}  // namespace platform
