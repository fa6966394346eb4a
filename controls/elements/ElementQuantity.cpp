#include "controls/elements/ElementQuantity.h"

#include <algorithm>
#include <array>

#include "controls/elements/NumberText.h"
#include "platform/text/GreekLiteral.h"

namespace controls {

namespace {

using namespace platform::literals;

// CODATA 2018: one electronvolt for each particle of a mole.
constexpr double kilojoulesPerMole = 96.48533;

struct Words {
    std::string_view name;
    std::string_view unit;
};

// In the order of the quantities.
constexpr std::array<Words, quantityCount> words{{
    {"Ηλεκτραρνητικότητα"_gr, "Pauling"_gr},
    {"Ατομική ακτίνα"_gr, "pm"_gr},
    {"Ενέργεια ιοντισμού"_gr, "kJ/mol"_gr},
    {"Πυκνότητα"_gr, "g/cm³"_gr},
    {"Σημείο τήξης"_gr, "K"_gr},
    {"Σημείο βρασμού"_gr, "K"_gr},
    {"Έτος ανακάλυψης"_gr, {}},
    {"Αφθονία στον φλοιό της Γης"_gr, "mg/kg"_gr},
    {"Ηλεκτρονιοσυγγένεια"_gr, "kJ/mol"_gr},
    {"Ακτίνα van der Waals"_gr, "pm"_gr},
}};

/// The figure behind a quantity; the year has none.
Figure figureOf(const Element& element, Quantity quantity) {
    switch (quantity) {
        case Quantity::electronegativity:
            return element.electronegativity;
        case Quantity::covalentRadius:
            return element.covalentRadius;
        case Quantity::ionisation:
            return element.ionisation;
        case Quantity::density:
            return element.density;
        case Quantity::melting:
            return element.meltingPoint;
        case Quantity::boiling:
            return element.boilingPoint;
        case Quantity::crust:
            return element.crust;
        case Quantity::electronAffinity:
            return element.affinity;
        case Quantity::vanDerWaalsRadius:
            return element.vanDerWaalsRadius;
        case Quantity::discovery:
            break;
    }
    return {};
}

/// Whether the table has a quantity in eV, which is shown in kJ/mol.
bool isEnergy(Quantity quantity) {
    return quantity == Quantity::ionisation || quantity == Quantity::electronAffinity;
}

/// The energy in kJ/mol, with no more digits than are known of it in eV.
std::string kilojoules(const Figure& electronvolts) {
    const auto value = electronvolts.value();
    return value ? fixedNumber(*value * kilojoulesPerMole, electronvolts.decimals() > 2 ? 1 : 0)
                 : std::string();
}

}  // namespace

std::string_view quantityName(Quantity quantity) { return words[static_cast<std::size_t>(quantity)].name; }

std::string_view quantityUnit(Quantity quantity) { return words[static_cast<std::size_t>(quantity)].unit; }

std::optional<double> quantityValue(const Element& element, Quantity quantity) {
    if (quantity == Quantity::discovery) return element.discovered;
    const auto value = figureOf(element, quantity).value();
    if (!value || !isEnergy(quantity)) return value;
    return *value * kilojoulesPerMole;
}

std::string quantityText(const Element& element, Quantity quantity) {
    if (isEnergy(quantity)) return kilojoules(figureOf(element, quantity));
    if (quantity != Quantity::discovery) return figureOf(element, quantity).withComma();
    return element.discovered == antiquity ? std::string("αρχαιότητα"_gr)
                                           : std::to_string(element.discovered);
}

std::string celsiusText(const Figure& kelvin) {
    const auto value = kelvin.value();
    return value ? fixedNumber(*value - zeroCelsius, std::min(kelvin.decimals(), 1)) : std::string();
}

}  // namespace controls
