#pragma once

#include <QPainter>
#include <QString>
#include <vector>

#include "controls/elements/Element.h"
#include "controls/periodic/TextFitter.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// One line of the card, such as "Σημείο τήξης" and "1811 K = 1538 °C".
struct Fact {
    QString label;
    QString value;
};

/// The facts on the card of an element, the most important first. The fact that the view shows comes before
/// all others. What is not known is "–". The state of matter is that at the temperature of the slider in the
/// view of matter, else at 25 °C.
std::vector<Fact> factsOf(const Element& element, const TableState& state);

/// The place of an element in the table, such as "ομάδα 8, περίοδος 4, τομέας d".
QString placeText(const Element& element);

/// The electrons of each shell, such as "2 · 8 · 14 · 2".
QString shellText(const Element& element);

/// Where the card of the selected element leads to the next one, or to the one before.
QRect cardStep(const QRect& card, bool forward);

/// Draws the card with an element's main data and its electrons.
void paintCard(QPainter& painter, TextFitter& fitter, const QRect& area, const Element& element,
               const TableState& state);

/// Draws the card while no element is chosen.
void paintEmptyCard(QPainter& painter, TextFitter& fitter, const QRect& area);

}  // namespace controls::periodic
