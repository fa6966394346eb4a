#pragma once

#include <vector>

#include "controls/elements/Element.h"

namespace controls {

/// The electrons of one subshell, such as six in 3d.
struct Subshell {
    int shell;    ///< principal quantum number, 1 to 7
    char letter;  ///< s, p, d or f
    int electrons;
    friend bool operator==(const Subshell&, const Subshell&) = default;
};

/// All subshells of an element that hold electrons, those of the noble gas included, from the innermost shell
/// outwards; empty when its configuration is not known.
std::vector<Subshell> subshellsOf(const Element& element);

/// How many electrons each shell holds, from the innermost (K) outwards; empty when that is not known.
std::vector<int> shellsOf(const Element& element);

}  // namespace controls
