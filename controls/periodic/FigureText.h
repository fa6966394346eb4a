#pragma once

#include <QString>

#include "controls/elements/ElementQuantity.h"

namespace controls::periodic {

/// A number with decimal comma and at most six digits, a very large or small one with a power of ten whose
/// exponent stands between two '^'.
QString numberText(double value);

/// The value of a quantity without unit, short enough for a cell; empty when it is not known.
QString valueText(const Element& element, Quantity quantity);

/// The value with its unit, temperatures also in °C, large abundances also in per cent; "–" when not known.
QString valueWithUnit(const Element& element, Quantity quantity);

/// A temperature in K and °C.
QString temperatureText(int kelvin);

/// The configuration with the electrons of each subshell between '^', the noble gas in brackets; empty when
/// it is not known.
QString configurationText(const Element& element);

}  // namespace controls::periodic
