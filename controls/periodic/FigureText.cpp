#include "controls/periodic/FigureText.h"

#include <QStringList>

#include <cmath>

#include "controls/common/QtText.h"

namespace controls::periodic {

namespace {

constexpr double leastPlain = 0.001;
constexpr double mostPlain = 1e6;
constexpr double percent = 10000;  // mg/kg

QString withComma(QString text) { return text.replace(QLatin1Char('.'), QLatin1Char(',')); }

QString withPower(double value) {
    // A little more, as 0,001 is stored as less than that.
    const int power = static_cast<int>(std::floor(std::log10(value) + 1e-10));
    const double factor = value / std::pow(10, power);
    QString raised = withMinus(QStringLiteral("10^%1^").arg(power));
    if (std::abs(factor - 1) < 1e-6) return raised;
    return withComma(QString::number(factor, 'g', 3)) + QStringLiteral("·") + raised;
}

/// Degrees Celsius in as many decimals as are known of the temperature in K, but no more than one.
QString celsius(const Figure& kelvin) {
    const double value = kelvin.value().value_or(0) - zeroCelsius;
    return withMinus(withComma(QString::number(value, 'f', std::min(kelvin.decimals(), 1))));
}

/// In one digit what needs a power of ten, in two what is small, else in those that are there.
QString shortText(double value) {
    if (value >= 1) return numberText(value);
    // A little more, as 5.5 is stored as less than that.
    return numberText(QString::number(value * (1 + 1e-9), 'g', value < leastPlain ? 1 : 2).toDouble());
}

}  // namespace

QString numberText(double value) {
    if (value != 0 && (value < leastPlain || value >= mostPlain)) return withPower(value);
    return withComma(QString::number(value, 'g', 6));
}

QString valueText(const Element& element, Quantity quantity) {
    const auto value = quantityValue(element, quantity);
    if (!value) return {};
    if (quantity == Quantity::discovery && *value == antiquity) return QStringLiteral("αρχαία");
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
