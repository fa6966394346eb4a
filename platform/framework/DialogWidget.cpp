#include "platform/framework/DialogWidget.h"

#include <QCloseEvent>
#include <QFont>
#include <QScreen>
#include <QWindow>

#include "platform/framework/Dialog.h"
#include "platform/framework/DialogControls.h"
#include "platform/framework/LightPalette.h"
#include "platform/handles/WindowTable.h"
#include "platform/machine/Machine.h"
#include "platform/windows/QtConvert.h"

namespace platform {

namespace {

/// As high as the letters of which the dialog units are made.
constexpr int fontPixels = 11;

QFont dialogFont() {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(fontPixels);
    return font;
}

QMargins frameByMetrics() {
    if (!hasMachine()) return {};
    const int side = machine().metric(SM_CXDLGFRAME);
    const int edge = machine().metric(SM_CYDLGFRAME);
    return {side, edge + machine().metric(SM_CYCAPTION), side, edge};
}

}  // namespace

DialogWidget::DialogWidget(CDialog& owner, const DialogTemplate& drawnUp, QWidget* parent)
    : SurfaceWidget(owner, parent, 0) {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowTitle(toQt(drawnUp.caption));
    setPalette(lightPalette());
    setFont(dialogFont());
    createControls(drawnUp.controls, *this);
    const CSize client = dialogPixels(drawnUp.size);
    setFixedSize(client.cx, client.cy);
    // Makes the native window, which knows its frame.
    winId();
    centre();
}

DialogWidget::~DialogWidget() { finish(); }

void DialogWidget::centre() {
    const QRect around = parentWidget() ? parentWidget()->frameGeometry() : screen()->availableGeometry();
    QRect outer = rect().marginsAdded(frameByMetrics());
    outer.moveCenter(around.center());
    place(outer);
}

QRect DialogWidget::outerRect() const {
    return {frameGeometry().topLeft(), rect().marginsAdded(frameByMetrics()).size()};
}

void DialogWidget::place(const QRect& rect) {
    const QRect client = rect.marginsRemoved(frameByMetrics());
    setFixedSize(client.size());
    move(rect.topLeft());
    sizeChanged();
}

void DialogWidget::focusFirstControl() {
    for (const HWND control : dialogControls(handle())) {
        QWidget* const widget = WindowTable::instance().widget(control);
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isEnabled() || widget->isHidden()) continue;
        widget->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void DialogWidget::runModal() {
    if (finished_) return;
    QEventLoop loop;
    loop_ = &loop;
    setWindowModality(Qt::ApplicationModal);
    show();
    activateWindow();
    loop.exec();
}

void DialogWidget::finish() {
    finished_ = true;
    if (loop_) loop_->quit();
}

void DialogWidget::end() {
    finish();
    SurfaceWidget::end();
}

void DialogWidget::closeEvent(QCloseEvent* event) {
    // The program decides whether and when the window goes.
    event->ignore();
    send(WM_CLOSE);
}

}  // namespace platform
