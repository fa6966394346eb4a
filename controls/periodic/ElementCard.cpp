#include "controls/periodic/ElementCard.h"

#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/elements/ElectronShells.h"
#include "controls/elements/Isotope.h"
#include "controls/periodic/ShellDrawing.h"
#include "controls/periodic/ValueText.h"

namespace controls::periodic {

namespace {

constexpr int minFactHeight = 15;
constexpr int maxFactPixels = 19;
constexpr int minFactWidth = 150;
constexpr int comfortableFactWidth = 220;
constexpr int headingLines = 3;
constexpr int minStepSide = 14;

QString matterText(Matter matter) {
    switch (matter) {
        case Matter::solid:
            return QStringLiteral("στερεό");
        case Matter::liquid:
            return QStringLiteral("υγρό");
        case Matter::gas:
            return QStringLiteral("αέριο");
        case Matter::unknown:
            break;
    }
    return QStringLiteral("–");
}

QString factName(const Element& element, Quantity quantity) {
    if (quantity == Quantity::crust) return QStringLiteral("Στον φλοιό της Γης");
    if (quantity == Quantity::melting && element.meltsUnderPressureOnly())
        return QStringLiteral("Τήξη υπό πίεση");
    if (quantity == Quantity::boiling && element.sublimes()) return QStringLiteral("Εξάχνωση");
    return toQt(quantityName(quantity));
}

Fact matterFact(const Element& element, const TableState& state) {
    const bool chosen = state.view == TableView::matter;
    const double kelvin = chosen ? state.kelvin : roomTemperature;
    const QString where = chosen ? QStringLiteral("%1 K").arg(state.kelvin) : QStringLiteral("25 °C");
    return {QStringLiteral("Κατάσταση, ") + where, matterText(element.matterAt(kelvin))};
}

/// The isotope that most atoms are in nature; of an element without natural ones, that with the longest
/// half-life.
Fact isotopeFact(const Element& element) {
    const auto all = isotopesOf(element);
    const auto share = [](const Isotope& isotope) { return isotope.abundance.value().value_or(0); };
    const auto most = std::ranges::max_element(all, {}, share);
    if (most == all.end()) return {QStringLiteral("Κύριο ισότοπο"), QStringLiteral("–")};
    const auto name = [&](const Isotope& isotope) {
        return QStringLiteral("%1-%2, ").arg(toQt(element.symbol)).arg(isotope.massNumber);
    };
    if (most->isNatural()) {
        return {QStringLiteral("Κύριο ισότοπο"),
                name(*most) + toQt(most->abundance.withComma()) + QStringLiteral(" %")};
    }
    const auto longest = std::ranges::max_element(all, {}, &Isotope::halfLife);
    return {QStringLiteral("Μακροβιότερο"), name(*longest) + toQt(halfLifeText(*longest))};
}

Fact oxidationFact(const Element& element) {
    const QString numbers = withMinus(toQt(element.oxidationText()));
    return {QStringLiteral("Αριθμοί οξείδωσης"), numbers.isEmpty() ? QStringLiteral("–") : numbers};
}

QString blockLetter(Block block) {
    constexpr const char* letters = "spdf";
    return {QLatin1Char(letters[static_cast<int>(block)])};
}

void paintPanel(QPainter& painter, const QRect& area, const QColor& mark) {
    painter.fillRect(area, appearance::line);
    painter.fillRect(area.adjusted(1, 1, -1, -1), appearance::paper);
    painter.fillRect(QRect(area.left(), area.top(), 4, area.height()), mark);
}

/// The coloured square with atomic number and symbol.
void paintTile(QPainter& painter, TextFitter& fitter, const QRect& tile, const Element& element) {
    painter.fillRect(tile, appearance::familyColors(element.family).fill);
    painter.setPen(appearance::text);
    const int number = tile.height() * 30 / 100;
    fitter.draw(painter, QRect(tile.left() + 3, tile.top() + 2, tile.width() - 6, number),
                QString::number(element.number), number * 8 / 10, Qt::AlignLeft);
    fitter.draw(painter, tile.adjusted(2, number - 2, -2, 0), toQt(element.symbol), tile.height() * 48 / 100,
                Qt::AlignCenter, QFont::Bold);
}

/// The Greek name, and the English one where it fits.
void paintNames(QPainter& painter, TextFitter& fitter, const QRect& area, const Element& element) {
    const int pixels = area.height() * 8 / 10;
    const QString name = toQt(element.greekName);
    const auto font = fitter.font(name, area.width(), pixels, QFont::Bold);
    if (!font) return;
    painter.setPen(appearance::deep);
    TextFitter::draw(painter, area, name, *font, Qt::AlignLeft);
    const int used = TextFitter::widthOf(name, *font) + pixels / 2;
    painter.setPen(appearance::muted);
    fitter.draw(painter, area.adjusted(used, 0, 0, 0), toQt(element.englishName), pixels * 7 / 10,
                Qt::AlignLeft);
}

QString electronsText(const Element& element) {
    const QString text = configurationText(element);
    return element.hasCalculatedConfiguration() ? text + QStringLiteral(" (υπολογισμένη)") : text;
}

void paintHeading(QPainter& painter, TextFitter& fitter, const QRect& area, const Element& element) {
    const QRect tile(area.left(), area.top(), area.height(), area.height());
    paintTile(painter, fitter, tile, element);
    const QRect lines(QPoint(tile.right() + area.height() / 8 + 3, area.top()), area.bottomRight());
    const int first = lines.height() * 42 / 100;
    const int height = (lines.height() - first) / (headingLines - 1);
    const auto line = [&](int index) {
        return QRect(lines.left(), lines.top() + first + index * height, lines.width(), height);
    };
    paintNames(painter, fitter, QRect(lines.left(), lines.top(), lines.width(), first), element);
    painter.setPen(appearance::text);
    const int pixels = std::max(height * 8 / 10, TextFitter::minPixels + 1);
    fitter.draw(painter, line(0),
                toQt(familyName(element.family)) + QStringLiteral(" · ") + placeText(element), pixels,
                Qt::AlignLeft);
    fitter.draw(painter, line(1),
                QStringLiteral("Ar = %1 · ").arg(toQt(element.massText())) + electronsText(element), pixels,
                Qt::AlignLeft);
}

/// The font of the facts. It is the same for all elements, so that it does not change while the pointer
/// moves.
QFont fontOfFacts(TextFitter& fitter, int width, int pixels) {
    static const QString usual = QStringLiteral("Σημείο βρασμού 3134 K = 2861 °C");
    return fitter.font(usual, width - pixels / 2, pixels).value_or(appearance::font(TextFitter::minPixels));
}

/// Draws one fact. If it is too long for the usual font, it gets a smaller one.
void paintFact(QPainter& painter, TextFitter& fitter, const QRect& area, const Fact& fact,
               const QFont& usual) {
    QFont font = usual;
    const int space = usual.pixelSize() / 2;
    if (TextFitter::widthOf(fact.label, usual) + TextFitter::widthOf(fact.value, usual) + space >
        area.width()) {
        font = fitter.font(fact.label + fact.value, area.width() - space, usual.pixelSize())
                   .value_or(appearance::font(TextFitter::minPixels));
    }
    painter.setPen(appearance::muted);
    TextFitter::draw(painter, area, fact.label, font, Qt::AlignLeft);
    painter.setPen(appearance::text);
    TextFitter::draw(painter, area, fact.value, font, Qt::AlignRight);
}

/// Draws as many facts as there is room for, column by column.
void paintFacts(QPainter& painter, TextFitter& fitter, const QRect& area, std::vector<Fact> facts) {
    const int count = static_cast<int>(facts.size());
    const int columns =
        area.width() >= 3 * comfortableFactWidth ? 3 : std::clamp(area.width() / minFactWidth, 1, 2);
    const int rows = std::clamp(area.height() / minFactHeight, 1, (count + columns - 1) / columns);
    facts.resize(static_cast<std::size_t>(std::min(count, rows * columns)));
    const int gutter = columns == 1 ? 0 : area.width() / 24;
    const int width = (area.width() - (columns - 1) * gutter) / columns;
    const int height = area.height() / rows;
    const QFont font = fontOfFacts(fitter, width, std::clamp(height * 7 / 10, 9, maxFactPixels));
    for (int i = 0; i < static_cast<int>(facts.size()); ++i) {
        paintFact(
            painter, fitter,
            QRect(area.left() + i / rows * (width + gutter), area.top() + i % rows * height, width, height),
            facts[static_cast<std::size_t>(i)], font);
    }
}

int spaceOf(const QRect& card) { return card.height() / 30 + 2; }

QRect innerOf(const QRect& card) {
    const int space = spaceOf(card);
    return card.adjusted(4 + 2 * space, space, -2 * space, -space);
}

int shellLineOf(const QRect& inner) { return std::max(inner.height() / 9, TextFitter::minPixels + 2); }

/// The right part of the card with the drawing of the shells and a line below it.
QRect shellPartOf(const QRect& inner) {
    const int side = std::min(inner.height() - shellLineOf(inner), inner.width() * 2 / 5);
    return {inner.right() + 1 - side, inner.top(), side, inner.height()};
}

void paintSteps(QPainter& painter, TextFitter& fitter, const QRect& card, int number) {
    painter.setPen(appearance::accent);
    for (const bool forward : {false, true}) {
        if (!findElement(number + (forward ? 1 : -1))) continue;
        const QRect place = cardStep(card, forward);
        fitter.draw(painter, place, forward ? QStringLiteral("›") : QStringLiteral("‹"), place.height(),
                    Qt::AlignCenter, QFont::Bold);
    }
}

}  // namespace

std::vector<Fact> factsOf(const Element& element, const TableState& state) {
    using enum Quantity;
    const auto fact = [&](Quantity quantity) {
        return Fact{factName(element, quantity), valueWithUnit(element, quantity)};
    };
    std::vector<Fact> facts{matterFact(element, state),
                            fact(melting),
                            fact(boiling),
                            fact(density),
                            oxidationFact(element),
                            fact(electronegativity),
                            fact(ionisation),
                            fact(covalentRadius),
                            fact(discovery),
                            isotopeFact(element),
                            fact(electronAffinity),
                            fact(crust),
                            fact(vanDerWaalsRadius)};
    if (const auto shown = quantityOf(state.view)) {
        const QString name = factName(element, *shown);
        std::ranges::stable_partition(facts, [&](const Fact& each) { return each.label == name; });
    }
    return facts;
}

QString placeText(const Element& element) {
    const QString rest =
        QStringLiteral("περίοδος %1, τομέας %2").arg(element.period()).arg(blockLetter(element.block()));
    return element.group() == 0 ? rest : QStringLiteral("ομάδα %1, ").arg(element.group()) + rest;
}

QString shellText(const Element& element) {
    QString text;
    for (const int electrons : shellsOf(element)) {
        if (!text.isEmpty()) text += QStringLiteral(" · ");
        text += QString::number(electrons);
    }
    return text;
}

void paintCard(QPainter& painter, TextFitter& fitter, const QRect& area, const Element& element,
               const TableState& state) {
    paintPanel(painter, area, appearance::familyColors(element.family).edge);
    const int space = spaceOf(area);
    const QRect inner = innerOf(area);
    const int shellLine = shellLineOf(inner);
    const QRect shells = shellPartOf(inner);
    const int side = shells.width();
    paintShells(painter, fitter, shells.adjusted(0, 0, 0, -shellLine), element);
    painter.setPen(appearance::text);
    fitter.draw(painter, QRect(shells.left(), shells.bottom() + 1 - shellLine, side, shellLine),
                shellText(element), shellLine * 8 / 10, Qt::AlignCenter);
    const QRect rest(inner.topLeft(), QPoint(shells.left() - 3 * space, inner.bottom()));
    const int heading = rest.height() * 38 / 100;
    paintHeading(painter, fitter, QRect(rest.left(), rest.top(), rest.width(), heading), element);
    paintFacts(painter, fitter, rest.adjusted(0, heading + space, 0, 0), factsOf(element, state));
    if (element.number == state.selected) paintSteps(painter, fitter, area, element.number);
}

QRect cardStep(const QRect& card, bool forward) {
    const QRect shells = shellPartOf(innerOf(card));
    const int side = std::max(shells.width() / 7, minStepSide);
    return {forward ? shells.right() + 1 - side : shells.left(), shells.top(), side, side};
}

void paintEmptyCard(QPainter& painter, TextFitter& fitter, const QRect& area) {
    paintPanel(painter, area, appearance::warm);
    const int unit = area.height() / 10;
    const QRect inner = area.adjusted(unit + 8, 2 * unit, -unit, -2 * unit);
    painter.setPen(appearance::deep);
    fitter.draw(painter, QRect(inner.left(), inner.top(), inner.width(), 3 * unit),
                QStringLiteral("Περιοδικός Πίνακας"), std::min(unit * 5 / 2, 40), Qt::AlignLeft, QFont::Bold);
    painter.setPen(appearance::muted);
    fitter.draw(painter, QRect(inner.left(), inner.top() + 3 * unit, inner.width(), 3 * unit),
                QStringLiteral("Επίλεξε ένα στοιχείο ή γράψε το σύμβολο ή το όνομά του"),
                std::clamp(unit * 3 / 2, 11, 22), Qt::AlignLeft);
}

}  // namespace controls::periodic
