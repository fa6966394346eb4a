#include "platform/dialogs/DialogWidget.h"

#include <QCloseEvent>
#include <QScreen>
#include <QWindow>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/DialogControls.h"
#include "platform/dialogs/OwnerWindow.h"
#include "platform/drawing/LightPalette.h"
#include "platform/drawing/ProgramFont.h"
#include "platform/machine/Machine.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

/// The size of the letters that define the dialog units.
constexpr int fontPixels = 11;

QMargins frameByMetrics() {
    if (!hasMachine()) return {};
    const int side = machine().metric(SM_CXDLGFRAME);
    const int edge = machine().metric(SM_CYDLGFRAME);
    return {side, edge + machine().metric(SM_CYCAPTION), side, edge};
}

Qt::WindowFlags windowFlagsOf(DialogFrame frame) {
    switch (frame) {
        case DialogFrame::tool:
            return Qt::Tool | Qt::FramelessWindowHint;
        case DialogFrame::plain:
            // Some window managers raise the window when it is clicked, even in front of its own dialogs. So
            // it takes no input.
            return Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput;
        case DialogFrame::window:
            break;
    }
    return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
}

}  // namespace

DialogWidget::DialogWidget(CDialog& owner, const DialogTemplate& description, QWidget* parent)
    : SurfaceWidget(owner, parent, 0), frame_(*this, description.frame) {
    setWindowFlags(windowFlagsOf(description.frame));
    stayInFrontOf(*this, parent);
    // A user who opens a tool box wants to go on working in the window below.
    setAttribute(Qt::WA_ShowWithoutActivating, description.frame != DialogFrame::window);
    setWindowTitle(toQt(description.caption));
    setPalette(lightPalette());
    setFont(programFont(fontPixels));
    createControls(description.controls, *this);
    const CSize client = dialogPixels(description.size);
    setFixedSize(QSize(client.cx, client.cy).grownBy(frame_.margins()));
    if (description.growing != 0) letGrow(description.growing);
    centre();
}

DialogWidget::~DialogWidget() { finish(); }

QMargins DialogWidget::windowFrame() const {
    return frame_.margins().isNull() ? frameByMetrics() : QMargins();
}

void DialogWidget::centre() {
    const QRect around = parentWidget() ? parentWidget()->frameGeometry() : screen()->availableGeometry();
    QRect outer = rect().marginsAdded(windowFrame());
    outer.moveCenter(around.center());
    DialogWidget::place(outer);
}

QRect DialogWidget::outerRect() const {
    return {frameGeometry().topLeft(), rect().marginsAdded(windowFrame()).size()};
}

void DialogWidget::place(const QRect& rect) {
    const QRect client = rect.marginsRemoved(windowFrame());
    if (growing_.any()) {
        resize(client.size());
    } else {
        setFixedSize(client.size());
    }
    move(rect.topLeft());
    sizeChanged();
}

void DialogWidget::showAs(int showCommand) {
    const bool leaves = showCommand == SW_HIDE && isActiveWindow() && parentWidget();
    SurfaceWidget::showAs(showCommand);
    // Otherwise the window system may activate a window of another program.
    if (leaves) parentWidget()->activateWindow();
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

bool DialogWidget::event(QEvent* event) {
    // A browser in the dialog may make Qt replace the native window, and show it before it is modal again.
    if (event->type() == QEvent::WinIdChange && loop_ && windowHandle()) {
        windowHandle()->setModality(Qt::ApplicationModal);
    }
    if (event->type() == QEvent::Show || event->type() == QEvent::WinIdChange) {
        QMetaObject::invokeMethod(this, &DialogWidget::keepTitleEmpty, Qt::QueuedConnection);
    }
    return frame_.handle(*event) || SurfaceWidget::event(event);
}

/// For an empty title Qt tells window managers the name of the program.
void DialogWidget::keepTitleEmpty() {
    if (windowTitle().isEmpty() && windowHandle()) windowHandle()->setTitle(QStringLiteral(" "));
}

void DialogWidget::paintEvent(QPaintEvent* event) {
    SurfaceWidget::paintEvent(event);
    frame_.paint();
}

void DialogWidget::letGrow(int control) {
    const QSize smallest = size();
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    setMinimumSize(smallest);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    std::vector<QWidget*> controls;
    for (const HWND each : dialogControls(handle())) controls.push_back(WindowTable::instance().widget(each));
    if (const QWidget* const growing = dialogControl(handle(), control)) {
        growing_.begin(controls, *growing, smallest);
    }
}

void DialogWidget::resizeEvent(QResizeEvent* event) {
    SurfaceWidget::resizeEvent(event);
    growing_.follow(size());
}

void DialogWidget::closeEvent(QCloseEvent* event) {
    // The program decides whether and when the window is destroyed.
    event->ignore();
    send(WM_CLOSE);
}

}  // namespace platform
