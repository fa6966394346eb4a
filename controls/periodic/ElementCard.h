#pragma once

#include <QPainter>
#include <QString>
#include <vector>

#include "controls/elements/Element.h"
#include "controls/periodic/Lettering.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// One line of the card, such as "Σημείο τήξης" and "1811 K = 1538 °C".
struct Fact {
    QString label;
    QString value;
};

/// The facts that the card tells of an element besides its names, the most important first and the one that
/// the view is about before all; what is not known is told as "–". The state of matter is that of the table's
/// temperature in the view of matter, else that at 25 °C.
std::vector<Fact> factsOf(const Element& element, const TableState& state);

/// Where an element stands, such as "ομάδα 8, περίοδος 4, τομέας d".
QString placeText(const Element& element);

/// The electrons of each shell, such as "2 · 8 · 14 · 2".
QString shellText(const Element& element);

/// Draws the card with an element's main data and its electrons.
void paintCard(QPainter& painter, Lettering& lettering, const QRect& area, const Element& element,
               const TableState& state);

/// Draws the card while no element is chosen.
void paintEmptyCard(QPainter& painter, Lettering& lettering, const QRect& area);

}  // namespace controls::periodic
