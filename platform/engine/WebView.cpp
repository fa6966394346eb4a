#include "platform/engine/WebView.h"

#include <QApplication>
#include <QChildEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QDialog>
#include <QMouseEvent>
#include <QPalette>
#include <QShortcut>
#include <QTextDocument>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/engine/ClipboardGuard.h"
#include "platform/input/TabOrder.h"
#include "platform/qt/QtChild.h"

namespace platform {

namespace {

/// The sizes of text that the keys go through, in percent.
constexpr std::array zoomSteps = {50, 67, 75, 90, 100, 110, 125, 150, 175, 200, 250};

/// Text in such a paragraph is shown as it stands.
constexpr auto plainTipStart = QLatin1StringView("<p style=\"white-space:pre-wrap\">");

}  // namespace

WebView::WebView(QWidget* parent) : QWebEngineView(parent) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Text, Qt::black);
    setPalette(colours);
    addZoomKeys();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* winner) { watchFocus(winner); });
}

// The focus moves once more while the engine's widget is destroyed.
WebView::~WebView() { disconnect(qApp, nullptr, this, nullptr); }

void WebView::open(QWebEnginePage& page) { setPage(&page); }

/// The text that a page gives for a tip is not to be taken for rich text, which could show files of the
/// machine.
bool WebView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTipChange && Qt::mightBeRichText(toolTip()) &&
        !toolTip().startsWith(plainTipStart)) {
        setToolTip(plainTipStart + toolTip().toHtmlEscaped() + QLatin1StringView("</p>"));
        return true;
    }
    if (event->type() == QEvent::WindowActivate) tellInFront(true);
    if (event->type() == QEvent::WindowDeactivate) tellInFront(false);
    return QWebEngineView::event(event);
}

/// What moves by itself in a page rests behind other windows.
void WebView::tellInFront(bool inFront) {
    page()->runJavaScript(
        QStringLiteral("for (let i = 0; i < length; ++i) window[i].postMessage({pageInFront: %1}, '*')")
            .arg(inFront ? QLatin1StringView("true") : QLatin1StringView("false")),
        QWebEngineScript::ApplicationWorld);
}

/// The engine's widget takes the page's input. A dialog below the view is one that a page asks for, as for a
/// colour: it is closed before it is seen.
void WebView::childEvent(QChildEvent* event) {
    QWebEngineView::childEvent(event);
    if (event->added() && event->child()->isWidgetType()) event->child()->installEventFilter(this);
    auto* const dialog = event->polished() ? qobject_cast<QDialog*>(event->child()) : nullptr;
    if (!dialog) return;
    dialog->setAttribute(Qt::WA_DontShowOnScreen);
    dialog->setModal(false);
    QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
}

void WebView::watchFocus(QWidget* winner) {
    if (!winner || !isAncestorOf(winner)) return;
    winner->installEventFilter(this);
    if (!isInSight(*this)) QMetaObject::invokeMethod(this, &WebView::passFocusOn, Qt::QueuedConnection);
}

/// Another page may come with another of the engine's widgets, which is to have the focus of the former. Qt
/// would move it on as the tabulator does, into a link of the page.
bool WebView::eventFilter(QObject* engineWidget, QEvent* event) {
    presses_.see(*event);
    ClipboardGuard::instance().see(*event);
    QWidget* const focus = QApplication::focusWidget();
    if (event->type() == QEvent::Hide && focus == engineWidget && isVisible()) {
        focus->clearFocus();
        QMetaObject::invokeMethod(this, &WebView::takeFocusBack, Qt::QueuedConnection);
    }
    return QWebEngineView::eventFilter(engineWidget, event);
}

/// By the tabulator the focus comes here too when the page is out of sight.
void WebView::passFocusOn() {
    QWidget* const focus = QApplication::focusWidget();
    if (!focus || !isAncestorOf(focus) || isInSight(*this)) return;
    if (!focusNextInSight(*focus, !(QApplication::keyboardModifiers() & Qt::ShiftModifier))) {
        focusAroundComponent(*parentWidget());
    }
}

void WebView::takeFocusBack() {
    if (isVisible() && !QApplication::focusWidget()) setFocus(Qt::OtherFocusReason);
}

void WebView::click(CPoint point) {
    // The engine's own widget, which takes the input.
    QWidget* const target = focusProxy();
    if (!target) return;
    const QPointF local = target->mapFrom(this, QPointF(point.x, point.y));
    const QPointF global = target->mapToGlobal(local);
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, local, global, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    };
    QCursor::setPos(global.toPoint());
    send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
}

void WebView::addZoomKeys() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        auto& shortcut = makeQtChild<QShortcut>(keys, this);
        shortcut.setContext(Qt::WindowShortcut);
        connect(&shortcut, &QShortcut::activated, this, action);
    };
    add(Qt::CTRL | Qt::Key_Plus, [this] { zoomBy(1); });
    add(Qt::CTRL | Qt::Key_Equal, [this] { zoomBy(1); });
    add(Qt::CTRL | Qt::Key_Minus, [this] { zoomBy(-1); });
    add(Qt::CTRL | Qt::Key_0, [this] { zoomTo(100); });
}

void WebView::zoomBy(int steps) {
    const auto nearest = std::ranges::min_element(
        zoomSteps, {}, [this](int percent) { return std::abs(percent - textSize_); });
    const auto wanted = nearest - zoomSteps.begin() + steps;
    const auto last = static_cast<std::ptrdiff_t>(zoomSteps.size()) - 1;
    zoomTo(zoomSteps[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(wanted, 0, last))]);
}

void WebView::zoomTo(int percent) {
    // A view that is out of sight keeps its factor.
    if (isInSight(*this)) setTextSize(percent);
}

void WebView::setTextSize(int percent) {
    textSize_ = std::clamp(percent, zoomSteps.front(), zoomSteps.back());
    setZoomFactor(textSize_ / 100.0);
}

}  // namespace platform
