#include "controls/elements/Element.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/text/GreekLiteral.h"

namespace controls {

namespace {

using namespace platform::literals;

constexpr int helium = 2;

// Atomic number of the noble gas that ends each period; 0 stands before the first.
constexpr std::array periodEnds{0, 2, 10, 18, 36, 54, 86, 118};

constexpr std::array<std::string_view, familyCount> familyNames{
    "Αλκάλια"_gr,   "Αλκαλικές γαίες"_gr, "Στοιχεία μετάπτωσης"_gr, "Λανθανίδες"_gr,
    "Ακτινίδες"_gr, "Μέταλλα p"_gr,       "Μεταλλοειδή"_gr,         "Αμέταλλα"_gr,
    "Αλογόνα"_gr,   "Ευγενή αέρια"_gr};

/// The element's place in its period, from 1.
int placeInPeriod(const Element& element) {
    return element.number - periodEnds[static_cast<std::size_t>(element.period()) - 1];
}

}  // namespace

std::optional<double> Figure::value() const {
    double result = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    return error == std::errc() ? std::optional(result) : std::nullopt;
}

int Figure::decimals() const {
    const std::size_t point = digits.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(digits.size() - point - 1);
}

std::string Figure::withComma() const {
    std::string text(digits);
    std::ranges::replace(text, '.', ',');
    return text;
}

int Element::period() const {
    const auto end = std::ranges::lower_bound(periodEnds, number);
    return static_cast<int>(end - periodEnds.begin());
}

int Element::group() const {
    const int place = placeInPeriod(*this);
    if (number == helium) return 18;
    if (place <= 2) return place;
    if (period() <= 3) return place + 10;
    if (period() <= 5) return place;
    return place <= 17 ? 0 : place - 14;
}

Block Element::block() const {
    if (group() == 0) return Block::f;
    if (group() <= 2 || number == helium) return Block::s;
    return group() <= 12 ? Block::d : Block::p;
}

bool Element::sublimes() const {
    const auto melting = meltingPoint.value();
    const auto boiling = boilingPoint.value();
    return melting && boiling && *boiling < *melting;
}

// Helium freezes under pressure only.
bool Element::meltsUnderPressureOnly() const { return number == helium || sublimes(); }

Matter Element::matterAt(double kelvin) const {
    const auto melting = meltingPoint.value();
    const auto boiling = boilingPoint.value();
    if (boiling && kelvin >= *boiling) return Matter::gas;
    if (!melting) return Matter::unknown;
    if (kelvin < *melting) return number == helium ? Matter::liquid : Matter::solid;
    if (boiling) return sublimes() ? Matter::solid : Matter::liquid;
    return Matter::unknown;
}

std::string Element::massText() const {
    return hasStandardMass() ? mass.withComma() : '[' + std::string(mass.digits) + ']';
}

std::string Element::oxidationText() const {
    std::string text;
    for (const char c : oxidationNumbers) c == ' ' ? text += ", " : text += c;
    return text;
}

const Element* findElement(int number) {
    if (number < 1 || number > elementCount) return nullptr;
    return &elements()[static_cast<std::size_t>(number) - 1];
}

std::string_view familyName(Family family) { return familyNames[static_cast<std::size_t>(family)]; }

std::optional<Family> familyOfCode(int code) {
    if (code < 1 || code > familyCount) return std::nullopt;
    return static_cast<Family>(code - 1);
}

}  // namespace controls
