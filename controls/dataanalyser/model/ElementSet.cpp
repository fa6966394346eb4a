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
// Stands before any year and is no number that a graph could show.
constexpr double beforeAllYears = -std::numeric_limits<double>::infinity();

// Places of the columns that a graph shows at first.
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

template <Figure Element::*member>
DataColumn figures(std::string_view title, std::string_view unit) {
    return numbers(
        title, unit, [](const Element& element) { return (element.*member).withComma(); },
        [](const Element& element) { return (element.*member).value().value_or(notKnown); });
}

std::string groupText(const Element& element) {
    return element.group() == 0 ? std::string() : std::to_string(element.group());
}

double groupValue(const Element& element) { return element.group() == 0 ? notKnown : element.group(); }

std::string yearText(const Element& element) {
    return element.discovered == antiquity ? std::string("αρχαιότητα"_gr)
                                           : std::to_string(element.discovered);
}

double yearValue(const Element& element) {
    return element.discovered == antiquity ? beforeAllYears : element.discovered;
}

/// Those that the columns of melting and boiling points need a remark for: "C, As".
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
    set.source += ": εξάχνωση αντί για βρασμό, τήξη υπό πίεση· He: τήξη υπό πίεση 25 atm)"_gr;
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
        figures<&Element::meltingPoint>("Σημείο τήξης"_gr, "K"),
        figures<&Element::boilingPoint>("Σημείο βρασμού"_gr, "K"),
        figures<&Element::density>("Πυκνότητα"_gr, "g/cm³"_gr),
        figures<&Element::electronegativity>("Ηλεκτραρνητικότητα"_gr, ""),
        numbers("Έτος ανακάλυψης"_gr, "", yearText, yearValue),
        numbers(
            quantityName(Quantity::ionisation), quantityUnit(Quantity::ionisation),
            [](const Element& e) { return quantityText(e, Quantity::ionisation); },
            [](const Element& e) { return quantityValue(e, Quantity::ionisation).value_or(notKnown); }),
        figures<&Element::covalentRadius>(quantityName(Quantity::covalentRadius),
                                          quantityUnit(Quantity::covalentRadius)),
        figures<&Element::crust>("Αφθονία στον φλοιό της Γης"_gr, "mg/kg"),
        words(DataColumnKind::category, "Οικογένεια"_gr,
              [](const Element& e) { return familyName(e.family); }),
    };
    set.graph = {atomicNumberColumn, electronegativityColumn};
    return set;
}

}  // namespace controls::dataanalyser
