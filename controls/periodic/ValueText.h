#pragma once

#include <QString>

#include "controls/elements/ElementQuantity.h"

namespace controls::periodic {

/// A number with decimal comma and at most six digits. A very large or small number is written with a power
/// of ten, whose exponent stands between two '^'.
QString numberText(double value);

/// The value of a quantity without unit, short enough for a cell; empty when it is not known.
QString valueText(const Element& element, Quantity quantity);

/// The value of a quantity with its unit, "–" when it is not known. A temperature is also given in °C, and a
/// large abundance in per cent.
QString valueWithUnit(const Element& element, Quantity quantity);

/// A temperature in K and °C.
QString temperatureText(int kelvin);

/// The electron configuration, with the noble gas in brackets and the number of electrons of each subshell
/// between two
/// '^'; empty when it is not known.
QString configurationText(const Element& element);

}  // namespace controls::periodic
