#include "tools/contentc/cards/ElementCard.h"

#include <algorithm>
#include <array>

#include "controls/elements/ElectronShells.h"
#include "controls/elements/ElementQuantity.h"
#include "controls/elements/NumberText.h"
#include "platform/text/CodePage1253.h"

namespace contentc {
namespace {

using controls::Element;
using controls::Figure;

constexpr std::array<std::string_view, controls::familyCount> members{
    "αλκάλιο",  "αλκαλική γαία", "στοιχείο μετάπτωσης", "λανθανίδα", "ακτινίδα", "μέταλλο", "μεταλλοειδές",
    "αμέταλλο", "αλογόνο",       "ευγενές αέριο"};

constexpr std::string_view blockLetters = "spdf";
constexpr int densityDigits = 4;
constexpr double cubicCentimetresPerLitre = 1000;

std::string place(const Element& element) {
    std::string words = std::string(memberOfFamily(element.family));
    if (element.group() > 0) words += ", ομάδα " + std::to_string(element.group());
    return words + ", περίοδος " + std::to_string(element.period()) + ", τομέας " +
           blockLetters[static_cast<std::size_t>(element.block())];
}

/// A configuration such as "Ar 3d6 4s2" with the noble gas in brackets and raised numbers of electrons.
std::string subshells(std::string_view configuration) {
    std::string html;
    for (std::size_t at = 0; at < configuration.size();) {
        const std::size_t end = std::min(configuration.find(' ', at), configuration.size());
        const std::string word(configuration.substr(at, end - at));
        if (!html.empty()) html += "&nbsp;";
        html += word.front() >= '0' && word.front() <= '9'
                    ? word.substr(0, 2) + "<SUP>" + word.substr(2) + "</SUP>"
                    : '[' + word + ']';
        at = end + 1;
    }
    return html;
}

std::string electrons(const Element& element) {
    std::string shells;
    for (const int count : controls::shellsOf(element))
        shells += (shells.empty() ? "" : ", ") + std::to_string(count);
    if (shells.empty()) return {};
    const std::string note = element.hasCalculatedConfiguration() ? " (υπολογισμένη)" : "";
    return shells + "<BR>" + subshells(element.configuration) + note;
}

std::string celsius(const Figure& kelvin) {
    const std::string number = controls::celsiusText(kelvin);
    return number.empty() ? number : numberHtml(number) + "&nbsp;&deg;C";
}

CardRow melting(const Element& element) {
    return {element.meltsUnderPressureOnly() ? "Τήξη υπό πίεση" : "Σημείο τήξης (1 atm)",
            celsius(element.meltingPoint)};
}

CardRow boiling(const Element& element) {
    return {element.sublimes() ? "Εξάχνωση (1 atm)" : "Σημείο βρασμού (1 atm)",
            celsius(element.boilingPoint)};
}

/// The density with at most four digits: of a gas in g/L, of others in g/cm³.
CardRow density(const Element& element) {
    const auto value = element.density.value();
    if (element.matter() == controls::Matter::gas) {
        const std::string digits =
            value ? controls::shortNumber(*value * cubicCentimetresPerLitre, densityDigits) : "";
        return {"Πυκνότητα (0&nbsp;&deg;C, 1 atm)", digits.empty() ? "" : digits + "&nbsp;g/L"};
    }
    const bool isShort = element.density.digits.size() <= densityDigits + 1;
    const std::string digits = !value    ? ""
                               : isShort ? element.density.withComma()
                                         : controls::shortNumber(*value, densityDigits);
    return {"Πυκνότητα (20&nbsp;&deg;C)", digits.empty() ? "" : digits + "&nbsp;g/cm<SUP>3</SUP>"};
}

CardRow discovery(const Element& element) {
    return {"Ανακάλυψη", platform::toUtf8(controls::quantityText(element, controls::Quantity::discovery))};
}

std::string oxidationNumbers(const Element& element) {
    std::string html;
    for (const char c : element.oxidationText())
        html += c == '-' ? std::string("&minus;") : std::string(1, c);
    return html;
}

std::string tile(const Element& element) {
    return R"(<DIV CLASS="tile"><SPAN CLASS="number">)" + std::to_string(element.number) +
           "</SPAN><SPAN CLASS=\"symbol\">" + std::string(element.symbol) + "</SPAN><SPAN CLASS=\"mass\">" +
           element.massText() + "</SPAN></DIV>";
}

}  // namespace

std::string_view memberOfFamily(controls::Family family) { return members[static_cast<std::size_t>(family)]; }

std::vector<CardRow> elementRows(const Element& element) {
    std::vector<CardRow> rows{
        {"Κατηγορία", place(element)},
        {"Κατανομή ηλεκτρονίων", electrons(element)},
        melting(element),
        boiling(element),
        density(element),
        {"Ηλεκτραρνητικότητα", element.electronegativity.withComma()},
        {"Αριθμοί οξείδωσης", oxidationNumbers(element)},
        discovery(element),
    };
    std::erase_if(rows, [](const CardRow& row) { return row.value.empty(); });
    return rows;
}

std::string elementCard(const Element& element, const std::vector<CardRow>& rowsOfAuthor) {
    return R"(<TABLE CLASS="element"><TR><TD CLASS="tile">)" + tile(element) + "</TD><TD>\n" +
           cardTable(withRowsOfAuthor(elementRows(element), rowsOfAuthor)) + "\n</TD></TR></TABLE>";
}

}  // namespace contentc
