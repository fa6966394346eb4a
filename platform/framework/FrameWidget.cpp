#include "platform/framework/FrameWidget.h"

#include <QCloseEvent>
#include <QIcon>
#include <QPixmap>
#include <QShortcut>
#include <QWindow>

#include "platform/base/Resources.h"
#include "platform/drawing/Artwork.h"
#include "platform/drawing/LightPalette.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/MenuBuilder.h"
#include "platform/qt/QtConvert.h"
#include "platform/windows/PaintQueue.h"

namespace platform {

namespace {

/// In the sizes of title bars and task lists. For larger ones the desktop uses the installed icon files.
QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        const QString name = QStringLiteral(":/icon/%1-%2.png").arg(toQt(Resources().iconName)).arg(size);
        icon.addPixmap(QPixmap::fromImage(pngImage(name)));
    }
    return icon;
}

}  // namespace

FrameWidget::FrameWidget(CFrameWnd& owner)
    : WindowWidget(owner, nullptr, 0), menuBar_(this), placement_(*this) {
    setPalette(lightPalette());
    setWindowIcon(programIcon());
    buildMenuBar(menuBar_, handle());
    openMenuByKey();
}

/// F10 opens the first menu. Alt does that only on some desktops.
void FrameWidget::openMenuByKey() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window has it
    auto* const key = new QShortcut(Qt::Key_F10, this);
    connect(key, &QShortcut::activated, this, [this] {
        if (!menuBar_.actions().isEmpty()) menuBar_.setActiveAction(menuBar_.actions().first());
    });
}

QRect FrameWidget::clientArea() const { return rect().adjusted(0, menuHeight(), 0, 0); }

int FrameWidget::menuHeight() const {
    // The bar gets its font when it is polished; before that its height would be wrong.
    menuBar_.ensurePolished();
    return menuBar_.actions().isEmpty() ? 0 : menuBar_.heightForWidth(width());
}

void FrameWidget::place(const QRect& outer) {
    placement_.place(outer);
    // The first WM_SIZE is sent when the window is first shown.
    if (shown_) sizeChanged();
}

void FrameWidget::showAs(int showCommand) {
    const Qt::WindowStates state = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (showCommand == SW_SHOWMINIMIZED || showCommand == SW_SHOWMAXIMIZED) placement_.remember();
    if (showCommand == SW_SHOWNORMAL) setWindowState(state);
    if (showCommand == SW_SHOWMINIMIZED) setWindowState(windowState() | Qt::WindowMinimized);
    if (showCommand == SW_SHOWMAXIMIZED) setWindowState(state | Qt::WindowMaximized);
    setVisible(showCommand != SW_HIDE);
}

void FrameWidget::toggleFullScreen() {
    if (windowState() == Qt::WindowNoState) placement_.remember();
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

UINT FrameWidget::sizeType() const {
    if (windowState() & Qt::WindowMinimized) return SIZE_MINIMIZED;
    return windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen) ? SIZE_MAXIMIZED : SIZE_RESTORED;
}

void FrameWidget::fitContent() { menuBar_.setGeometry(0, 0, width(), menuHeight()); }

void FrameWidget::changeEvent(QEvent* event) {
    WindowWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !shown_) return;
    // If the size changes too, the resize event follows, which sends WM_SIZE.
    const bool resizes = sizeType() != SIZE_MINIMIZED && windowHandle()->size() != size();
    if (!resizes) sizeChanged();
}

void FrameWidget::closeEvent(QCloseEvent* event) {
    // The program decides whether and when the window is destroyed.
    event->ignore();
    send(WM_CLOSE);
}

void FrameWidget::resizeEvent(QResizeEvent*) {
    if (shown_) sizeChanged();
    // Qt paints right after a resize; the content must have the new size by then.
    deliverScheduledPaints();
}

void FrameWidget::showEvent(QShowEvent* event) {
    WindowWidget::showEvent(event);
    if (event->spontaneous()) return;
    shown_ = true;
    sizeChanged();
}

}  // namespace platform
