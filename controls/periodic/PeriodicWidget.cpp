#include "controls/periodic/PeriodicWidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <optional>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/ElementCard.h"
#include "controls/periodic/FigureText.h"
#include "controls/periodic/Legend.h"
#include "controls/periodic/ScaleBox.h"
#include "controls/periodic/ValueSlider.h"
#include "controls/periodic/ViewStrip.h"
#include "controls/periodic/model/ElementKinds.h"
#include "controls/periodic/model/QuantityScale.h"
#include "platform/qt/QtChild.h"

namespace controls::periodic {

namespace {

constexpr int kelvinStep = 10;
constexpr int yearStep = 1;

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

QString yearWords(int year) {
    const auto known =
        std::ranges::count_if(elements(), [&](const Element& element) { return element.discovered <= year; });
    return QStringLiteral("Έως το %1: %2 στοιχεία").arg(year).arg(known);
}

ValueSlider::Purpose temperaturePurpose() {
    return {leastKelvin, mostKelvin, usualKelvin, kelvinStep, QStringLiteral("Θερμοκρασία"), temperatureText};
}

ValueSlider::Purpose yearPurpose() {
    return {leastYear, mostYear, mostYear, yearStep, QStringLiteral("Έτος"), yearWords};
}

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

void PeriodicWidget::makeParts() {
    strip_ = &platform::makeQtChild<ViewStrip>(
        lettering_,
        [this](TableView view) {
            setView(view);
            takeFocus();
        },
        this);
    slider_ = &platform::makeQtChild<ValueSlider>(lettering_, this);
    connect(slider_, &QSlider::valueChanged, this, [this](int value) {
        slide(value);
        takeFocus();
    });
    scaleBox_ = &platform::makeQtChild<ScaleBox>(lettering_, this);
    connect(scaleBox_, &QCheckBox::clicked, this, [this] {
        state_.otherScale = !state_.otherScale;
        update();
        takeFocus();
    });
    updateParts();
    strip_->show();
}

void PeriodicWidget::takeFocus() {
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || !isAncestorOf(focused)) setFocus();
}

void PeriodicWidget::updateParts() {
    if (!strip_) return;
    const TableLayout layout = layoutNow();
    strip_->place(layout.strip(), layout.stripRows());
    strip_->setView(state_.view);
    updateSlider();
    const auto quantity = quantityOf(state_.view);
    scaleBox_->setGeometry(layout.scaleBox(state_.view));
    scaleBox_->setVisible(hasOtherScale(state_.view));
    if (quantity) scaleBox_->setChecked(QuantityScale(*quantity, state_.otherScale).logarithmic());
}

void PeriodicWidget::updateSlider() {
    slider_->setGeometry(layoutNow().slider(state_.view));
    slider_->setVisible(!slider_->geometry().isEmpty());
    if (state_.view == TableView::matter) slider_->setPurpose(temperaturePurpose(), state_.kelvin);
    if (state_.view == TableView::discovery) slider_->setPurpose(yearPurpose(), state_.year);
}

void PeriodicWidget::setState(const TableState& state) {
    state_ = state;
    hoveredKind_ = 0;
    updateParts();
    select(state.selected);
    update();
}

void PeriodicWidget::setView(TableView view) {
    if (view == state_.view) return;
    state_.view = view;
    state_.highlighted = 0;
    state_.otherScale = false;
    setState(state_);
}

void PeriodicWidget::slide(int value) {
    (state_.view == TableView::matter ? state_.kelvin : state_.year) = value;
    update();
}

void PeriodicWidget::select(int number) {
    updateCell(state_.selected);
    state_.selected = number;
    const Element* element = findElement(number);
    setAccessibleDescription(element ? spokenText(*element, state_)
                                     : QStringLiteral("118 στοιχεία· δεν έχει επιλεγεί στοιχείο"));
    TableAccess::focused(*this, number);
    updateCell(number);
    updateCard();
}

void PeriodicWidget::choose(int number) {
    select(number);
    // The page that opens takes the pointer over, and no leave event tells of it.
    hover(0);
    chosen_(number);
}

void PeriodicWidget::hover(int number) {
    if (number == hovered_) return;
    updateCell(hovered_);
    hovered_ = number;
    updateCell(number);
    updateCard();
}

void PeriodicWidget::hoverKind(int kind) {
    if (std::exchange(hoveredKind_, kind) != kind) update();
}

void PeriodicWidget::highlight(int kind) {
    state_.highlighted = state_.highlighted == kind ? 0 : kind;
    update();
}

void PeriodicWidget::updateCell(int number) {
    constexpr int reach = CellPainter::frameReach;
    if (number != 0) update(cellOf(number).adjusted(-reach, -reach, reach, reach));
}

void PeriodicWidget::updateCard() { update(layoutNow().card()); }

void PeriodicWidget::showEvent(QShowEvent*) {
    if (!strip_) makeParts();
}

void PeriodicWidget::resizeEvent(QResizeEvent*) { updateParts(); }

void PeriodicWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const TableLayout layout = layoutNow();
    const CellPainter cells(painter, lettering_, layout.cellSize());
    painter.fillRect(event->rect(), appearance::ground);
    paintLabels(painter, layout);
    paintPlaceholders(cells, layout);
    paintElements(cells, layout, event->region());
    if (event->region().intersects(layout.card())) paintCardOf(painter, layout.card());
    if (event->region().intersects(layout.legend(state_.view))) {
        paintLegend(painter, lettering_, layout, state_, highlightedNow());
    }
}

void PeriodicWidget::paintCardOf(QPainter& painter, const QRect& area) {
    const Element* shown = findElement(hovered_ != 0 ? hovered_ : state_.selected);
    if (shown) return paintCard(painter, lettering_, area, *shown, state_);
    paintEmptyCard(painter, lettering_, area);
    if (!hasFocus()) return;
    // No cell shows it.
    painter.setPen(QPen(appearance::deep, 2));
    painter.drawRect(area.adjusted(1, 1, -1, -1));
}

void PeriodicWidget::paintElements(const CellPainter& cells, const TableLayout& layout,
                                   const QRegion& dirty) const {
    const int highlighted = highlightedNow();
    for (const Element& element : elements()) {
        const QRect cell = layout.cell(placeOf(element.number));
        if (dirty.intersects(cell)) cells.paint(cell, element, lookOf(element, state_, highlighted));
    }
    if (hovered_ != 0) cells.paintFrame(layout.cell(placeOf(hovered_)), appearance::accent, false);
    if (state_.selected != 0) {
        cells.paintFrame(layout.cell(placeOf(state_.selected)), appearance::deep, hasFocus());
    }
}

void PeriodicWidget::paintPlaceholders(const CellPainter& cells, const TableLayout& layout) const {
    const bool families = state_.view == TableView::families;
    const auto edge = [&](Family family) {
        return families ? appearance::familyColors(family).edge : appearance::line;
    };
    cells.paintPlaceholder(layout.cell({innerColumn, 6}), QStringLiteral("57–71"), edge(Family::lanthanide));
    cells.paintPlaceholder(layout.cell({innerColumn, 7}), QStringLiteral("89–103"), edge(Family::actinide));
}

void PeriodicWidget::paintLabels(QPainter& painter, const TableLayout& layout) {
    painter.setPen(appearance::muted);
    const int pixels = layout.labelPixels();
    for (int group = 1; group <= columnCount; ++group) {
        lettering_.draw(painter, layout.groupLabel(group), QString::number(group), pixels, Qt::AlignCenter,
                        QFont::DemiBold);
    }
    for (int period = 1; period <= 7; ++period) {
        lettering_.draw(painter, layout.periodLabel(period), QString::number(period), pixels, Qt::AlignCenter,
                        QFont::DemiBold);
    }
    for (const auto& [row, family] :
         {std::pair(lanthanideRow, Family::lanthanide), std::pair(actinideRow, Family::actinide)}) {
        lettering_.draw(painter, layout.rowName(row), toQt(familyName(family)), pixels + 2, Qt::AlignRight,
                        QFont::DemiBold);
    }
}

void PeriodicWidget::mouseMoveEvent(QMouseEvent* event) {
    const TableLayout layout = layoutNow();
    const QPoint point = event->position().toPoint();
    hover(layout.elementAt(point));
    hoverKind(layout.kindAt(point, state_.view));
    const bool active = hovered_ != 0 || hoveredKind_ != 0;
    setCursor(active ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PeriodicWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const TableLayout layout = layoutNow();
    const QPoint point = event->position().toPoint();
    pressed_ = layout.elementAt(point);
    if (pressed_ != 0) select(pressed_);
    if (const int kind = layout.kindAt(point, state_.view)) highlight(kind);
}

void PeriodicWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int pressed = std::exchange(pressed_, 0);
    if (pressed != 0 && elementAt(event->position().toPoint()) == pressed) choose(pressed);
}

void PeriodicWidget::leaveEvent(QEvent*) {
    hover(0);
    hoverKind(0);
}

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

bool PeriodicWidget::stepView(const QKeyEvent& event) {
    if (event.modifiers() != Qt::ControlModifier) return false;
    const bool forward = event.key() == Qt::Key_PageDown;
    if (!forward && event.key() != Qt::Key_PageUp) return false;
    setView(*viewOfCode((viewCode(state_.view) + (forward ? 1 : viewCount - 1)) % viewCount));
    return true;
}

bool PeriodicWidget::stepSlider(int key) {
    if (!slider_ || !slider_->isVisible()) return false;
    switch (key) {
        case Qt::Key_Plus:
            slider_->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            return true;
        case Qt::Key_Minus:
            slider_->triggerAction(QAbstractSlider::SliderSingleStepSub);
            return true;
        case Qt::Key_PageUp:
            slider_->triggerAction(QAbstractSlider::SliderPageStepAdd);
            return true;
        case Qt::Key_PageDown:
            slider_->triggerAction(QAbstractSlider::SliderPageStepSub);
            return true;
        default:
            return false;
    }
}

bool PeriodicWidget::highlightByKey(int key) {
    if (key < Qt::Key_0 || key > Qt::Key_9) return false;
    const int kind = key == Qt::Key_0 ? 10 : key - Qt::Key_0;
    if (kind <= kindCount(state_.view)) highlight(kind);
    return true;
}

void PeriodicWidget::typed(const QKeyEvent& event) {
    if (const int found = typeAhead_.type(fromQt(event.text()), clock_.elapsed())) {
        hover(0);
        select(found);
    }
}

void PeriodicWidget::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (stepView(*event)) return;
    if (plain && (step(event->key()) || stepSlider(event->key()) || highlightByKey(event->key()))) return;
    if (plain && isPrintable(event->text())) return typed(*event);
    if (!plain || !enter) return QWidget::keyPressEvent(event);
    if (state_.selected != 0) chosen_(state_.selected);
}

}  // namespace controls::periodic
