#include "controls/periodic/model/ElementGrid.h"

#include <algorithm>

#include "controls/elements/Element.h"

namespace controls::periodic {

namespace {

constexpr int lanthanum = 57;
constexpr int actinium = 89;

int vertical(int number, int step) {
    Place place = placeOf(number);
    for (place.row += step; place.row >= 1 && place.row <= rowCount; place.row += step) {
        if (const int found = elementAt(place)) return found;
    }
    return number;
}

}  // namespace

Place placeOf(int number) {
    const Element& element = *findElement(number);
    if (element.family == Family::lanthanide) return {innerColumn + number - lanthanum, lanthanideRow};
    if (element.family == Family::actinide) return {innerColumn + number - actinium, actinideRow};
    return {element.group(), element.period()};
}

int elementAt(Place place) {
    const auto found = std::ranges::find_if(
        elements(), [&](const Element& element) { return placeOf(element.number) == place; });
    return found == elements().end() ? 0 : found->number;
}

int neighbour(int number, Step step) {
    if (number == 0) return 1;
    switch (step) {
        case Step::left:
            return std::max(number - 1, 1);
        case Step::right:
            return std::min(number + 1, elementCount);
        case Step::up:
            return vertical(number, -1);
        case Step::down:
            return vertical(number, 1);
    }
    return number;
}

}  // namespace controls::periodic
