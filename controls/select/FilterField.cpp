#include "controls/select/FilterField.h"

#include <QAction>
#include <QFocusEvent>
#include <QIconEngine>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <memory>

#include "controls/select/Appearance.h"

namespace controls::select {

namespace {

constexpr int maxTyped = 100;
constexpr int iconSize = 16;
// A narrower field has no glass, so that more text fits.
constexpr int narrowWidth = 150;

/// Draws the glass in the size in which it is shown, so that it is sharp on every screen.
class GlassEngine : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->scale(1.0 * rect.width() / iconSize, 1.0 * rect.height() / iconSize);
        painter->setPen(QPen(appearance::accent, 1.6, Qt::SolidLine, Qt::RoundCap));
        painter->drawEllipse(QRectF(2.5, 2.5, 8, 8));
        painter->drawLine(QPointF(9.6, 9.6), QPointF(13.5, 13.5));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return std::make_unique<GlassEngine>().release(); }
};

}  // namespace

FilterField::FilterField(QWidget* parent)
    : QLineEdit(parent),
      glass_(addAction(QIcon(std::make_unique<GlassEngine>().release()), QLineEdit::LeadingPosition)) {
    setObjectName(QStringLiteral("filterField"));
    setFont(appearance::font());
    setPlaceholderText(QStringLiteral("Βρες θέμα…"));
    setAccessibleName(QStringLiteral("Αναζήτηση θέματος"));
    setAccessibleDescription(
        QStringLiteral("Στενεύει τη λίστα των θεμάτων· Enter ανοίγει το πρώτο που βρέθηκε"));
    setClearButtonEnabled(true);
    nameButtons();
    setMaxLength(maxTyped);
    setContextMenuPolicy(Qt::NoContextMenu);
}

/// Gives the buttons names for screen readers, because they show pictures only.
void FilterField::nameButtons() {
    for (QToolButton* const button : findChildren<QToolButton*>()) {
        const bool glass = button->defaultAction() == glass_;
        button->setAccessibleName(glass ? accessibleName() : QStringLiteral("Καθαρισμός"));
    }
}

platform::LRESULT FilterField::receive(platform::UINT message) {
    switch (message) {
        case platform::WM_CUT:
            cut();
            break;
        case platform::WM_COPY:
            copy();
            break;
        case platform::WM_PASTE:
            paste();
            break;
        default:
            break;
    }
    return 0;
}

void FilterField::takeTyping(const QString& text) {
    setFocus();
    end(false);
    insert(text);
}

void FilterField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else if (event->key() == Qt::Key_Down || event->key() == Qt::Key_PageDown) {
        emit leftAtBottom();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

/// The commands of the menu bar act on this field, which then gets the focus back. So the selection stays, as
/// it does for a pop-up menu.
void FilterField::focusOutEvent(QFocusEvent* event) {
    const bool toMenu = event->reason() == Qt::MenuBarFocusReason;
    QFocusEvent leaving(QEvent::FocusOut, toMenu ? Qt::PopupFocusReason : event->reason());
    QLineEdit::focusOutEvent(&leaving);
}

void FilterField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    glass_->setVisible(width() >= narrowWidth);
}

}  // namespace controls::select
