#include "controls/elements/ElementSearch.h"

#include <algorithm>

#include "platform/text/Fold.h"

namespace controls {

const Element* findElementByStart(std::string_view typed) {
    if (typed.empty()) return nullptr;
    const std::string wanted = platform::fold(typed);
    const auto isSymbol = [&](const Element& element) { return platform::fold(element.symbol) == wanted; };
    const auto startsName = [&](const Element& element) {
        return platform::fold(element.greekName).starts_with(wanted) ||
               platform::fold(element.englishName).starts_with(wanted);
    };
    auto found = std::ranges::find_if(elements(), isSymbol);
    if (found == elements().end()) found = std::ranges::find_if(elements(), startsName);
    return found == elements().end() ? nullptr : &*found;
}

}  // namespace controls
