#include "controls/periodic/PeriodicWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <optional>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/periodic/ElementCard.h"

namespace controls::periodic {

namespace {

std::optional<Step> stepOfKey(int key) {
    switch (key) {
        case Qt::Key_Left:
            return Step::left;
        case Qt::Key_Right:
            return Step::right;
        case Qt::Key_Up:
            return Step::up;
        case Qt::Key_Down:
            return Step::down;
        default:
            return std::nullopt;
    }
}

bool isPrintable(const QString& text) { return !text.isEmpty() && text.front().isLetter(); }

}  // namespace

PeriodicWidget::PeriodicWidget(std::function<void(int)> chosen, QWidget* parent)
    : QWidget(parent), chosen_(std::move(chosen)) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Περιοδικός Πίνακας"));
    clock_.start();
    select(0);
}

QSize PeriodicWidget::sizeHint() const { return {1016, 640}; }

void PeriodicWidget::setState(const TableState& state) {
    state_ = state;
    select(state.selected);
}

void PeriodicWidget::select(int number) {
    state_.selected = number;
    const Element* element = findElement(number);
    setAccessibleDescription(element ? QStringLiteral("%1, %2, ατομικός αριθμός %3")
                                           .arg(toQt(element->greekName), toQt(element->symbol))
                                           .arg(number)
                                     : QStringLiteral("118 στοιχεία· δεν έχει επιλεγεί στοιχείο"));
    update();
}

void PeriodicWidget::hover(int number) {
    if (number == hovered_) return;
    hovered_ = number;
    update();
}

void PeriodicWidget::highlight(Family family) {
    state_.highlighted = state_.highlighted == family ? std::nullopt : std::optional(family);
    update();
}

void PeriodicWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const TableLayout layout = layoutNow();
    painter.fillRect(rect(), appearance::ground);
    paintLabels(painter, layout);
    paintPlaceholders(painter, layout);
    paintElements(painter, layout);
    paintLegend(painter, layout);
    const Element* shown = findElement(hovered_ != 0 ? hovered_ : state_.selected);
    shown ? paintCard(painter, layout.card(), *shown) : paintEmptyCard(painter, layout.card());
}

void PeriodicWidget::paintElements(QPainter& painter, const TableLayout& layout) const {
    const CellPainter cells(layout.cellSize());
    const auto paintOne = [&](const Element& element) {
        const bool selected = element.number == state_.selected;
        const CellMarks marks{.selected = selected,
                              .hovered = element.number == hovered_,
                              .faded = state_.highlighted && state_.highlighted != element.family,
                              .focused = selected && hasFocus()};
        cells.paint(painter, layout.cell(placeOf(element.number)), element, marks);
    };
    for (const Element& element : elements()) paintOne(element);
    // Their frames lie over the neighbours.
    for (const int number : {hovered_, state_.selected}) {
        if (const Element* framed = findElement(number)) paintOne(*framed);
    }
}

void PeriodicWidget::paintPlaceholders(QPainter& painter, const TableLayout& layout) const {
    const CellPainter cells(layout.cellSize());
    cells.paintPlaceholder(painter, layout.cell({innerColumn, 6}), QStringLiteral("57–71"),
                           Family::lanthanide);
    cells.paintPlaceholder(painter, layout.cell({innerColumn, 7}), QStringLiteral("89–103"),
                           Family::actinide);
}

void PeriodicWidget::paintLabels(QPainter& painter, const TableLayout& layout) const {
    painter.setPen(appearance::muted);
    painter.setFont(appearance::font(layout.labelPixels(), QFont::DemiBold));
    for (int group = 1; group <= columnCount; ++group) {
        painter.drawText(layout.groupLabel(group), Qt::AlignCenter, QString::number(group));
    }
    for (int period = 1; period <= 7; ++period) {
        painter.drawText(layout.periodLabel(period), Qt::AlignCenter, QString::number(period));
    }
    for (const auto& [row, family] :
         {std::pair(lanthanideRow, Family::lanthanide), std::pair(actinideRow, Family::actinide)}) {
        const QString name = toQt(familyName(family));
        const QRect area = layout.rowName(row);
        const auto font = appearance::fittingFont(name, area.width(), layout.labelPixels() + 2,
                                                  CellPainter::leastPixels, QFont::DemiBold);
        if (!font) continue;
        painter.setFont(*font);
        painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, name);
    }
}

void PeriodicWidget::paintLegend(QPainter& painter, const TableLayout& layout) const {
    const QRect swatch = layout.legendSwatch();
    const int nameStart = swatch.right() + 6;
    // The longest name settles the font of all.
    const int width = layout.legendItem(Family::transition).width() - nameStart - 8;
    painter.setFont(appearance::fittingFont(toQt(familyName(Family::transition)), width,
                                            layout.labelPixels() + 1, CellPainter::leastPixels)
                        .value_or(appearance::font(CellPainter::leastPixels)));
    for (int code = 1; code <= familyCount; ++code) {
        const Family family = *familyOfCode(code);
        const auto colors = appearance::familyColors(family);
        const QRect item = layout.legendItem(family);
        if (state_.highlighted == family) painter.fillRect(item, appearance::selected);
        const QRect here = swatch.translated(item.topLeft());
        painter.fillRect(here, colors.edge);
        painter.fillRect(here.adjusted(1, 1, -1, -1), colors.fill);
        painter.setPen(appearance::text);
        painter.drawText(item.adjusted(nameStart, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         toQt(familyName(family)));
    }
}

void PeriodicWidget::mouseMoveEvent(QMouseEvent* event) {
    const TableLayout layout = layoutNow();
    const QPoint point = event->position().toPoint();
    hover(layout.elementAt(point));
    const bool active = hovered_ != 0 || layout.legendAt(point);
    setCursor(active ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PeriodicWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const TableLayout layout = layoutNow();
    const QPoint point = event->position().toPoint();
    pressed_ = layout.elementAt(point);
    if (pressed_ != 0) select(pressed_);
    if (const auto family = layout.legendAt(point)) highlight(*family);
}

void PeriodicWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int pressed = std::exchange(pressed_, 0);
    if (pressed == 0 || layoutNow().elementAt(event->position().toPoint()) != pressed) return;
    // The page that opens takes the pointer over, and no leave event tells of it.
    hover(0);
    chosen_(pressed);
}

void PeriodicWidget::leaveEvent(QEvent*) { hover(0); }

bool PeriodicWidget::step(int key) {
    int target = 0;
    if (const auto direction = stepOfKey(key)) target = neighbour(state_.selected, *direction);
    if (key == Qt::Key_Home) target = 1;
    if (key == Qt::Key_End) target = elementCount;
    if (target == 0) return false;
    hover(0);
    select(target);
    return true;
}

void PeriodicWidget::typed(QKeyEvent& event) {
    if (const int found = typeAhead_.type(fromQt(event.text()), clock_.elapsed())) {
        hover(0);
        select(found);
    }
}

void PeriodicWidget::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (plain && step(event->key())) return;
    if (plain && isPrintable(event->text())) return typed(*event);
    if (!plain || !enter) return QWidget::keyPressEvent(event);
    if (state_.selected != 0) chosen_(state_.selected);
}

}  // namespace controls::periodic
