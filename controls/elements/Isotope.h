#pragma once

#include <span>
#include <string>

#include "controls/elements/Element.h"

namespace controls {

/// An isotope of an element that occurs in nature, or one of its longer-lived radioactive ones.
struct Isotope {
    int element;  ///< atomic number
    int massNumber;
    Figure
        abundance;  ///< share of the element's atoms in nature, per cent; unknown when it hardly occurs there
    double halfLife;  ///< s; 0 for a stable one

    bool isStable() const { return halfLife == 0; }
    bool isNatural() const { return abundance.known(); }
};

/// All isotopes of the table, by atomic number and mass number.
std::span<const Isotope> isotopes();

/// The isotopes of an element in ascending order of their mass numbers.
std::span<const Isotope> isotopesOf(const Element& element);

/// The half-life with three digits at most and its unit in Greek, such as "5730 χρόνια" or
/// "4,47 δισεκατομμύρια χρόνια"; one of more than a million million years is written with a power of ten,
/// whose exponent stands between two '^'. "σταθερό" for a stable isotope.
std::string halfLifeText(const Isotope& isotope);

}  // namespace controls
