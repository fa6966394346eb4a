#include "controls/dataanalyser/model/ElementSet.h"

#include <limits>

#include "controls/elements/Element.h"
#include "controls/elements/ElementQuantity.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

namespace {

using namespace platform::literals;
using formats::DataColumn;
using formats::DataColumnKind;

constexpr double notKnown = std::numeric_limits<double>::quiet_NaN();
// Sorts before any year, and graphs leave it out as they do every infinite number.
constexpr double beforeAllYears = -std::numeric_limits<double>::infinity();

// The columns that a graph shows at first.
constexpr std::size_t atomicNumberColumn = 0;
constexpr std::size_t electronegativityColumn = 9;

DataColumn words(DataColumnKind kind, std::string_view title, std::string_view (*cell)(const Element&)) {
    DataColumn column{kind, std::string(title), {}, {}, {}};
    for (const Element& element : elements()) column.cells.emplace_back(cell(element));
    return column;
}

DataColumn numbers(std::string_view title, std::string_view unit, std::string (*text)(const Element&),
                   double (*value)(const Element&)) {
    DataColumn column{DataColumnKind::number, std::string(title), std::string(unit), {}, {}};
    for (const Element& element : elements()) {
        column.cells.push_back(text(element));
        column.values.push_back(value(element));
    }
    return column;
}

template <Quantity quantity>
DataColumn quantityColumn(std::string_view unit = quantityUnit(quantity)) {
    return numbers(
        quantityName(quantity), unit, [](const Element& element) { return quantityText(element, quantity); },
        [](const Element& element) { return quantityValue(element, quantity).value_or(notKnown); });
}

std::string groupText(const Element& element) {
    return element.group() == 0 ? std::string() : std::to_string(element.group());
}

double groupValue(const Element& element) { return element.group() == 0 ? notKnown : element.group(); }

double yearValue(const Element& element) {
    return element.discovered == antiquity ? beforeAllYears : element.discovered;
}

/// The symbols of the elements that sublime, such as "C, As": the melting and boiling points need a remark
/// for them.
std::string sublimingElements() {
    std::string symbols;
    for (const Element& element : elements()) {
        if (!element.sublimes()) continue;
        if (!symbols.empty()) symbols += ", ";
        symbols += element.symbol;
    }
    return symbols;
}

}  // namespace

formats::DataSet elementSet() {
    formats::DataSet set;
    set.title = "Χημικά στοιχεία"_gr;
    set.source = "Blue Obelisk Data Repository, IUPAC ("_gr;
    set.source += sublimingElements();
    set.source +=
        ": εξάχνωση αντί για βρασμό, τήξη υπό πίεση· He: τήξη υπό πίεση 25 atm· ηλεκτρονιοσυγγένεια 0: το άτομο δεν συγκρατεί άλλο ηλεκτρόνιο)"_gr;
    for (const Element& element : elements()) set.rowIds.push_back(static_cast<std::int16_t>(element.number));
    set.columns = {
        numbers(
            "Ατομικός αριθμός"_gr, "", [](const Element& e) { return std::to_string(e.number); },
            [](const Element& e) -> double { return e.number; }),
        words(DataColumnKind::text, "Σύμβολο"_gr, [](const Element& e) { return e.symbol; }),
        words(DataColumnKind::text, "Όνομα"_gr, [](const Element& e) { return e.greekName; }),
        numbers(
            "Σχετική ατομική μάζα"_gr, "", [](const Element& e) { return e.massText(); },
            [](const Element& e) { return e.mass.value().value_or(notKnown); }),
        numbers("Ομάδα"_gr, "", groupText, groupValue),
        numbers(
            "Περίοδος"_gr, "", [](const Element& e) { return std::to_string(e.period()); },
            [](const Element& e) -> double { return e.period(); }),
        quantityColumn<Quantity::melting>(),
        quantityColumn<Quantity::boiling>(),
        quantityColumn<Quantity::density>(),
        quantityColumn<Quantity::electronegativity>(""),
        numbers(
            quantityName(Quantity::discovery), "",
            [](const Element& e) { return quantityText(e, Quantity::discovery); }, yearValue),
        quantityColumn<Quantity::ionisation>(),
        quantityColumn<Quantity::covalentRadius>(),
        quantityColumn<Quantity::crust>(),
        words(DataColumnKind::category, "Οικογένεια"_gr,
              [](const Element& e) { return familyName(e.family); }),
        // Bookmarks know columns by their places, so later ones come last.
        quantityColumn<Quantity::electronAffinity>(),
        quantityColumn<Quantity::vanDerWaalsRadius>(),
    };
    set.graph = {atomicNumberColumn, electronegativityColumn};
    return set;
}

}  // namespace controls::dataanalyser
