#pragma once

#include <QPainter>
#include <QString>
#include <vector>

#include "controls/common/Element.h"

namespace controls::periodic {

/// One line of the card, such as "Τήξη" and "1811 K".
struct Fact {
    QString label;
    QString value;
};

/// The facts that the card tells of an element besides its names; what is not known is told as "–".
std::vector<Fact> factsOf(const Element& element);

/// Where an element stands, such as "Ομάδα 8, περίοδος 4, τομέας d".
QString placeText(const Element& element);

/// Draws the card with an element's main data.
void paintCard(QPainter& painter, const QRect& area, const Element& element);

/// Draws the card while no element is chosen.
void paintEmptyCard(QPainter& painter, const QRect& area);

}  // namespace controls::periodic
