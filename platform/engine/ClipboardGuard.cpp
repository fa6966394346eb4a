#include "platform/engine/ClipboardGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QWebEngineView>
#include <chrono>
#include <utility>

namespace platform {

namespace {

/// The engine lets a page's script write for a shorter time after a press.
constexpr std::chrono::seconds timeForAnswer{7};
/// How long the engine may take to copy.
constexpr std::chrono::seconds copyTime{1};

/// Pixels; a letter is hardly wider.
constexpr qreal dragDistance = 4;

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
bool isOwnWrite(QClipboard::Mode mode) {
    const QClipboard& clipboard = *QApplication::clipboard();
    const bool owns = mode == QClipboard::Clipboard ? clipboard.ownsClipboard() : clipboard.ownsSelection();
    return owns || QApplication::platformName() == QLatin1StringView("offscreen");
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
    const QClipboard* const clipboard = QApplication::clipboard();
    connect(clipboard, &QClipboard::dataChanged, this, [this] { changed(copied_); });
    connect(clipboard, &QClipboard::selectionChanged, this, [this] { changed(selected_); });
}

ClipboardGuard::~ClipboardGuard() = default;

void ClipboardGuard::see(const QEvent& event) {
    if (!isPress(event)) return;
    if (!copied_.kept) copied_.keepContent();
    if (!selected_.kept && QApplication::clipboard()->supportsSelection()) selected_.keepContent();
    pageMayWrite_.setRemainingTime(timeForAnswer);
    if (copies(event)) copied_.expectWrite();
    if (selects(event)) selected_.expectWrite();
}

/// Text is selected by dragging, by clicking twice, and with the Shift key.
bool ClipboardGuard::selects(const QEvent& event) {
    if (event.type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        return key.matches(QKeySequence::SelectAll) || key.modifiers().testFlag(Qt::ShiftModifier);
    }
    const auto* const mouse = dynamic_cast<const QMouseEvent*>(&event);
    if (!mouse) return false;
    if (event.type() == QEvent::MouseButtonPress) pressed_ = mouse->position();
    const bool isDragged = event.type() == QEvent::MouseButtonRelease &&
                           (mouse->position() - pressed_).manhattanLength() >= dragDistance;
    return isDragged || event.type() == QEvent::MouseButtonDblClick ||
           mouse->modifiers().testFlag(Qt::ShiftModifier);
}

void ClipboardGuard::changed(Guarded& one) {
    if (!isPagesWrite(one)) {
        one.kept.reset();
        return;
    }
    if (!std::exchange(told_, true)) qWarning("A page wrote the clipboard; it has its former content again.");
    one.putBack();
}

bool ClipboardGuard::isPagesWrite(const Guarded& one) const {
    if (!one.kept || pageMayWrite_.hasExpired() || !one.userWrites.hasExpired() || !isOwnWrite(one.mode))
        return false;
    // When the focus is in another part of the program, that part has copied. And a page cannot copy a
    // picture alone.
    const QWidget* const focus = QApplication::focusWidget();
    const QMimeData* const content = QApplication::clipboard()->mimeData(one.mode);
    return (!focus || isInPage(*focus)) && content && (content->hasText() || !content->hasImage());
}

void ClipboardGuard::Guarded::expectWrite() { userWrites.setRemainingTime(copyTime); }

void ClipboardGuard::Guarded::keepContent() {
    kept = std::make_unique<QMimeData>();
    const QMimeData* const content = QApplication::clipboard()->mimeData(mode);
    if (!content) return;
    // Only these forms: the program that the content comes from is asked for each of them.
    if (content->hasText()) kept->setText(content->text());
    if (content->hasHtml()) kept->setHtml(content->html());
    const QString png(pngType);
    if (content->hasFormat(png)) kept->setData(png, content->data(png));
    // Shared and not copied where it comes from this program.
    if (isOwnWrite(mode) && content->hasImage()) kept->setImageData(content->imageData());
}

void ClipboardGuard::Guarded::putBack() {
    QClipboard& clipboard = *QApplication::clipboard();
    // Taken first, since putting it back is seen as another change.
    std::unique_ptr<QMimeData> former = std::move(kept);
    if (former->formats().isEmpty()) {
        clipboard.clear(mode);
    } else {
        clipboard.setMimeData(former.release(), mode);
    }
    keepContent();
}

}  // namespace platform
