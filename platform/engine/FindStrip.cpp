#include "platform/engine/FindStrip.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QToolButton>
#include <QWebEngineFindTextResult>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <memory>

#include "platform/drawing/LightPalette.h"
#include "platform/qt/QtChild.h"

namespace platform {

namespace {

constexpr int stripHeight = 38;
constexpr int fieldWidth = 220;

constexpr auto stripStyle = QLatin1StringView(
    "#findStrip { background: #F4F7F9; border-top: 1px solid #B4C0CA; }"
    "* { color: #1c2733; font: 13px 'Liberation Sans'; }"
    "QLineEdit { background: #FFFFFF; border: 1px solid #B4C0CA; border-radius: 3px; padding: 3px 6px; }"
    "QLineEdit:focus { border-color: #2460A7; }"
    "QToolButton { background: transparent; border: 1px solid transparent; border-radius: 3px; padding: 3px "
    "8px; }"
    "QToolButton:hover { background: #D3E5F0; }"
    "QToolButton:focus { border-color: #2460A7; }");

}  // namespace

FindStrip::FindStrip(QWebEngineView& view)
    : QWidget(view.parentWidget()),
      view_(view),
      field_(makeQtChild<QLineEdit>(this)),
      count_(makeQtChild<QLabel>(this)) {
    setObjectName(QStringLiteral("findStrip"));
    setAttribute(Qt::WA_StyledBackground);
    setPalette(lightPalette());
    setStyleSheet(stripStyle);
    hide();
    layOut();
    view_.installEventFilter(this);
    connect(&field_, &QLineEdit::textChanged, this, [this] { find(false); });
    connect(&view_, &QWebEngineView::loadFinished, this, [this] {
        if (isVisible()) find(false);
    });
}

void FindStrip::layOut() {
    field_.setPlaceholderText(QStringLiteral("Εύρεση στη σελίδα"));
    field_.setAccessibleName(field_.placeholderText());
    field_.setMaximumWidth(fieldWidth);
    auto row = std::make_unique<QHBoxLayout>();
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(4);
    row->addWidget(&field_, 100);
    const auto addButton = [&](const QString& text, const QString& tip, auto action) {
        auto& button = makeQtChild<QToolButton>(this);
        button.setText(text);
        button.setToolTip(tip);
        button.setAccessibleName(tip.section(QStringLiteral(" ("), 0, 0));
        button.setFocusPolicy(Qt::TabFocus);
        connect(&button, &QToolButton::clicked, this, action);
        row->addWidget(&button);
    };
    addButton(QStringLiteral("Προηγούμενο"), QStringLiteral("Προηγούμενο (Shift+Enter)"),
              [this] { find(true); });
    addButton(QStringLiteral("Επόμενο"), QStringLiteral("Επόμενο (Enter)"), [this] { find(false); });
    row->addWidget(&count_);
    row->addStretch(1);
    addButton(QStringLiteral("✕"), QStringLiteral("Κλείσιμο (Esc)"), [this] { close(); });
    setLayout(row.release());
}

void FindStrip::open() {
    // The page gets the rest of the height, so that the strip hides nothing of it.
    view_.setContentsMargins(0, 0, 0, stripHeight);
    place();
    show();
    raise();
    field_.setFocus(Qt::OtherFocusReason);
    field_.selectAll();
    qApp->installEventFilter(this);
    find(false);
}

void FindStrip::close() {
    if (isHidden()) return;
    qApp->removeEventFilter(this);
    view_.installEventFilter(this);
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    if (hadFocus) view_.setFocus(Qt::OtherFocusReason);
    hide();
    view_.setContentsMargins(0, 0, 0, 0);
    if (view_.page()) view_.page()->findText(QString());
}

bool FindStrip::copySelection() {
    if (!field_.hasFocus() || !field_.hasSelectedText()) return false;
    field_.copy();
    return true;
}

/// Escape closes the strip also when the focus is elsewhere in its window.
bool FindStrip::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &view_ && (event->type() == QEvent::Resize || event->type() == QEvent::Move)) place();
    const bool escape = event->type() == QEvent::KeyPress && watched->isWidgetType() &&
                        static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape && !QApplication::activePopupWidget() && !QApplication::activeModalWidget()) close();
    return QWidget::eventFilter(watched, event);
}

void FindStrip::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QWidget::keyPressEvent(event);
    if (auto* const button = qobject_cast<QToolButton*>(focusWidget())) return button->click();
    find(event->modifiers() & Qt::ShiftModifier);
}

void FindStrip::focusInEvent(QFocusEvent*) { field_.setFocus(); }

void FindStrip::place() {
    const QRect page = view_.geometry();
    setGeometry(page.left(), page.bottom() + 1 - stripHeight, page.width(), stripHeight);
}

void FindStrip::find(bool backward) {
    QWebEnginePage* const page = view_.page();
    if (!page) return;
    if (field_.text().isEmpty()) tell({});
    page->findText(field_.text(), backward ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags(),
                   [self = QPointer(this)](const QWebEngineFindTextResult& result) {
                       if (self) self->showResult(result);
                   });
}

void FindStrip::showResult(const QWebEngineFindTextResult& result) {
    if (field_.text().isEmpty()) return;
    tell(result.numberOfMatches() > 0
             ? QStringLiteral("%1 από %2").arg(result.activeMatch()).arg(result.numberOfMatches())
             : QStringLiteral("Δεν βρέθηκε"));
}

/// Screen readers get it with the field's name.
void FindStrip::tell(const QString& count) {
    count_.setText(count);
    field_.setAccessibleName(count.isEmpty() ? field_.placeholderText()
                                             : field_.placeholderText() + QStringLiteral(", ") + count);
}

}  // namespace platform
