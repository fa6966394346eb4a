#include "controls/periodic/PeriodicWidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <optional>
#include <utility>

#include "controls/common/QtText.h"
#include "controls/elements/ElementSearch.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/ElementCard.h"
#include "controls/periodic/ScaleBox.h"
#include "controls/periodic/TablePainter.h"
#include "controls/periodic/ValueSlider.h"
#include "controls/periodic/ValueText.h"
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
    return {minKelvin, maxKelvin, usualKelvin, kelvinStep, QStringLiteral("Θερμοκρασία"), temperatureText};
}

ValueSlider::Purpose yearPurpose() {
    return {minYear, maxYear, maxYear, yearStep, QStringLiteral("Έτος"), yearWords};
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
        fitter_,
        [this](TableView view) {
            setView(view);
            takeFocus();
        },
        this);
    slider_ = &platform::makeQtChild<ValueSlider>(fitter_, this);
    connect(slider_, &QSlider::valueChanged, this, [this](int value) {
        slide(value);
        takeFocus();
    });
    scaleBox_ = &platform::makeQtChild<ScaleBox>(fitter_, this);
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
    // The page that opens now covers the table, and no leave event comes.
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
    const int highlighted = hoveredKind_ != 0 ? hoveredKind_ : state_.highlighted;
    paintTable(painter, fitter_, layoutNow(), {state_, hovered_, highlighted, hasFocus()}, event->region());
}

void PeriodicWidget::mouseMoveEvent(QMouseEvent* event) {
    const TableLayout layout = layoutNow();
    const QPoint point = event->position().toPoint();
    hover(layout.elementAt(point));
    hoverKind(layout.kindAt(point, state_.view));
    const bool active = hovered_ != 0 || hoveredKind_ != 0 || elementOfStep(point) != 0;
    setCursor(active ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PeriodicWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const TableLayout layout = layoutNow();
    const QPoint point = event->position().toPoint();
    pressed_ = layout.elementAt(point);
    if (pressed_ != 0) select(pressed_);
    if (const int kind = layout.kindAt(point, state_.view)) highlight(kind);
    if (const int number = elementOfStep(point)) select(number);
}

void PeriodicWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int pressed = std::exchange(pressed_, 0);
    if (pressed != 0 && elementAt(event->position().toPoint()) == pressed) choose(pressed);
}

int PeriodicWidget::elementOfStep(QPoint point) const {
    if (state_.selected == 0) return 0;
    for (const bool forward : {false, true}) {
        const int number = state_.selected + (forward ? 1 : -1);
        if (cardStep(layoutNow().card(), forward).contains(point)) return findElement(number) ? number : 0;
    }
    return 0;
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
    setView(viewBeside(state_.view, forward ? 1 : -1));
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

bool PeriodicWidget::stepHighlight(const QKeyEvent& event) {
    if (event.modifiers() != Qt::ControlModifier) return false;
    const bool forward = event.key() == Qt::Key_Right;
    if (!forward && event.key() != Qt::Key_Left) return false;
    // 0 is the state in which no kind stands out.
    const int states = kindCount(state_.view) + 1;
    state_.highlighted = (state_.highlighted + (forward ? 1 : states - 1)) % states;
    update();
    return true;
}

void PeriodicWidget::typed(const QKeyEvent& event) {
    if (const Element* found = typeAhead_.type(fromQt(event.text()), clock_.elapsed(), findElementByStart)) {
        hover(0);
        select(found->number);
    }
}

void PeriodicWidget::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (stepView(*event) || stepHighlight(*event)) return;
    if (plain && (step(event->key()) || stepSlider(event->key()) || highlightByKey(event->key()))) return;
    if (plain && isPrintable(event->text())) return typed(*event);
    if (!plain || !enter) return QWidget::keyPressEvent(event);
    if (state_.selected != 0) chosen_(state_.selected);
}

}  // namespace controls::periodic
