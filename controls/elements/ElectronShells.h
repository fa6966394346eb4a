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

/// All subshells of an element that hold electrons, from the innermost shell outwards. Empty when its
/// configuration is not known.
std::vector<Subshell> subshellsOf(const Element& element);

/// The number of electrons in each shell, from the innermost (K) outwards. Empty when it is not known.
std::vector<int> shellsOf(const Element& element);

}  // namespace controls
