#include "controls/periodic/ValueText.h"

#include <QStringList>
#include <cmath>

#include "controls/common/QtText.h"
#include "controls/elements/NumberText.h"

namespace controls::periodic {

namespace {

// Numbers outside these limits are written with a power of ten.
constexpr double minPlain = 0.001;
constexpr double maxPlain = 1e6;
constexpr double percent = 10000;  // in mg/kg

QString withPower(double value) {
    // The small addition corrects rounding: 0.001 is stored as a smaller number.
    const int power = static_cast<int>(std::floor(std::log10(value) + 1e-10));
    const double factor = value / std::pow(10, power);
    QString raised = withMinus(QStringLiteral("10^%1^").arg(power));
    if (std::abs(factor - 1) < 1e-6) return raised;
    return toQt(shortNumber(factor, 3)) + QStringLiteral("·") + raised;
}

QString celsius(const Figure& kelvin) { return withMinus(toQt(celsiusText(kelvin))); }

/// Whether an atom binds no further electron: it gains no energy, and how much it would need is not measured.
bool gainsNothing(Quantity quantity, double value) {
    return quantity == Quantity::electronAffinity && value == 0;
}

/// A number below 1 is shortened to two digits, or to one when it is written with a power of ten.
QString shortText(double value) {
    if (value >= 1) return numberText(value);
    // The small addition corrects rounding: a number such as 5.5e-10 may be stored as a smaller one.
    return numberText(QString::number(value * (1 + 1e-9), 'g', value < minPlain ? 1 : 2).toDouble());
}

}  // namespace

QString numberText(double value) {
    if (value != 0 && (value < minPlain || value >= maxPlain)) return withPower(value);
    return toQt(shortNumber(value, 6));
}

QString valueText(const Element& element, Quantity quantity) {
    const auto value = quantityValue(element, quantity);
    if (!value) return {};
    if (quantity == Quantity::discovery && *value == antiquity) return QStringLiteral("αρχαία");
    if (gainsNothing(quantity, *value)) return QStringLiteral("≤ 0");
    if (quantity == Quantity::density || quantity == Quantity::crust) return shortText(*value);
    if (*value >= 100) return QString::number(std::lround(*value));
    return toQt(quantityText(element, quantity));
}

QString valueWithUnit(const Element& element, Quantity quantity) {
    const auto value = quantityValue(element, quantity);
    if (!value) return QStringLiteral("–");
    const QString unit = QLatin1Char(' ') + toQt(quantityUnit(quantity));
    switch (quantity) {
        case Quantity::electronegativity:
        case Quantity::discovery:
            return toQt(quantityText(element, quantity));
        case Quantity::melting:
            return toQt(quantityText(element, quantity)) +
                   QStringLiteral(" K = %1 °C").arg(celsius(element.meltingPoint));
        case Quantity::boiling:
            return toQt(quantityText(element, quantity)) +
                   QStringLiteral(" K = %1 °C").arg(celsius(element.boilingPoint));
        case Quantity::electronAffinity:
            return (gainsNothing(quantity, *value) ? QStringLiteral("≤ 0")
                                                   : toQt(quantityText(element, quantity))) +
                   unit;
        case Quantity::crust:
            if (*value >= percent) return numberText(*value / percent) + QStringLiteral(" %");
            return numberText(*value) + unit;
        default:
            return toQt(quantityText(element, quantity)) + unit;
    }
}

QString temperatureText(int kelvin) {
    const long celsiusDegrees = std::lround(kelvin - zeroCelsius);
    return withMinus(QStringLiteral("%1 K = %2 °C").arg(kelvin).arg(celsiusDegrees));
}

QString configurationText(const Element& element) {
    QString text;
    for (const QString& word : toQt(element.configuration).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (!text.isEmpty()) text += QLatin1Char(' ');
        text += word.front().isDigit() ? word.left(2) + QLatin1Char('^') + word.mid(2) + QLatin1Char('^')
                                       : QLatin1Char('[') + word + QLatin1Char(']');
    }
    return text;
}

}  // namespace controls::periodic
