#include "tools/contentc/cards/ElementPage.h"

#include <algorithm>
#include <array>
#include <vector>

#include "controls/elements/Isotope.h"
#include "controls/elements/NumberText.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/cards/ElementCard.h"

namespace contentc {
namespace {

using controls::Element;
using controls::Isotope;

constexpr double oneDay = 86'400;
// Elements above this one have been made in such small amounts that only research uses them.
constexpr int lastUsefulElement = 98;
constexpr std::size_t shownRadioactiveCount = 3;
// Technetium, promethium and astatine were made before they were found in nature.
constexpr std::array madeElements{43, 61, 85};
constexpr int lastFoundElement = 92;
// The last element of which traces were found in ores.
constexpr int lastTraceElement = 94;
constexpr int abundanceDigits = 4;

std::string lowerName(const Element& element) {
    return platform::toUtf8(platform::toLower(element.greekName));
}

/// Names in -ο are neuter, the others (-ος, -ας) masculine.
bool isMasculine(const Element& element) { return platform::toUtf8(element.greekName).ends_with("ς"); }

bool wasMade(const Element& element) {
    return element.number > lastFoundElement ||
           std::ranges::find(madeElements, element.number) != madeElements.end();
}

std::string_view stateWord(controls::Matter matter) {
    switch (matter) {
        case controls::Matter::solid:
            return "στερεή";
        case controls::Matter::liquid:
            return "υγρή";
        case controls::Matter::gas:
            return "αέρια";
        case controls::Matter::unknown:
            break;
    }
    return {};
}

std::string leadSentences(const Element& element) {
    std::string text = (isMasculine(element) ? "Ο " : "Το ") + lowerName(element) + " (" +
                       std::string(element.symbol) + ") είναι " +
                       std::string(memberOfFamily(element.family)) + " με ατομικό αριθμό " +
                       std::to_string(element.number) + ". Ανήκει στην ";
    if (element.group() > 0) text += "ομάδα " + std::to_string(element.group()) + " και στην ";
    text += "περίοδο " + std::to_string(element.period());
    const std::string_view state = stateWord(element.matter());
    if (!state.empty()) text.append(" και στους 25 °C βρίσκεται σε ").append(state).append(" κατάσταση");
    return text + ".";
}

std::string discoverySentence(const Element& element) {
    if (element.discovered == controls::antiquity)
        return isMasculine(element) ? "Είναι γνωστός από την αρχαιότητα."
                                    : "Είναι γνωστό από την αρχαιότητα.";
    return (wasMade(element) ? "Παρασκευάστηκε για πρώτη φορά το " : "Ανακαλύφθηκε το ") +
           std::to_string(element.discovered) + ".";
}

/// The isotopes that the page shows: those of nature and the longest-lived others, in order of mass.
std::vector<Isotope> shownIsotopes(const Element& element) {
    std::vector<Isotope> natural;
    std::vector<Isotope> radioactive;
    for (const Isotope& isotope : controls::isotopesOf(element))
        (isotope.isNatural() ? natural : radioactive).push_back(isotope);
    std::ranges::sort(radioactive, std::ranges::greater(), &Isotope::halfLife);
    if (radioactive.size() > shownRadioactiveCount) radioactive.resize(shownRadioactiveCount);
    // Beside natural isotopes, those that decay within hours say little.
    if (!natural.empty())
        std::erase_if(radioactive, [](const Isotope& isotope) { return isotope.halfLife < oneDay; });
    natural.insert(natural.end(), radioactive.begin(), radioactive.end());
    std::ranges::sort(natural, {}, &Isotope::massNumber);
    return natural;
}

std::string abundanceText(const Isotope& isotope) {
    const auto value = isotope.abundance.value();
    return value ? controls::shortNumber(*value, abundanceDigits) : "–";
}

/// The half-life; the power of ten of a very long one in the marks of formulas.
std::string halfLifeMarkdown(const Isotope& isotope) {
    std::string text = platform::toUtf8(controls::halfLifeText(isotope));
    const std::size_t power = text.find('^');
    if (power == std::string::npos) return text;
    const std::size_t end = text.find('^', power + 1);
    text.erase(end, 1);
    return '$' + text.substr(0, end) + '$' + text.substr(end);
}

/// The genitive of the numbers from 2 on, which the natural isotopes of an element reach.
constexpr std::array<std::string_view, 9> countsInGenitive{"δύο",  "τριών", "τεσσάρων", "πέντε", "έξι",
                                                           "επτά", "οκτώ",  "εννέα",    "δέκα"};

std::string isotopeSentence(const Element& element, const std::vector<Isotope>& shown) {
    const auto natural = static_cast<std::size_t>(std::ranges::count_if(shown, &Isotope::isNatural));
    const bool hasStable = std::ranges::any_of(shown, &Isotope::isStable);
    std::string text =
        natural == 1 ? "Στη φύση υπάρχει ένα μόνο από τα [[ισότοπά|ισότοπα]] του."
        : natural > 1
            ? "Στη φύση είναι μείγμα " +
                  std::string(countsInGenitive[std::min(natural - 2, countsInGenitive.size() - 1)]) +
                  " [[ισοτόπων]]."
            : (element.number > lastTraceElement ? "Στη φύση δεν υπάρχει."
                                                 : "Στη φύση υπάρχουν μόνο ίχνη του.");
    if (!hasStable) text += " Όλα τα ισότοπά του είναι ραδιενεργά.";
    return text;
}

std::string isotopeTable(const Element& element, const std::vector<Isotope>& shown) {
    std::string text = "| Ισότοπο | % στη φύση | Χρόνος υποδιπλασιασμού |\n|---|---:|---|\n";
    for (const Isotope& isotope : shown) {
        text += "| " + lowerName(element) + '-' + std::to_string(isotope.massNumber) + " | " +
                abundanceText(isotope) + " | " + halfLifeMarkdown(isotope) + " |\n";
    }
    return text;
}

bool isUsedInResearchOnly(const Element& element, const std::vector<Isotope>& isotopes) {
    const bool isBrief = std::ranges::all_of(isotopes, [](const Isotope& isotope) {
        return !isotope.isStable() && !isotope.isNatural() && isotope.halfLife < oneDay;
    });
    return isBrief || element.number > lastUsefulElement;
}

}  // namespace

std::string elementPageSource(const Element& element, const FamilyText& family) {
    const auto isotopes = shownIsotopes(element);
    const std::string uses = isUsedInResearchOnly(element, isotopes)
                                 ? "Έχουν παραχθεί ελάχιστες ποσότητές του, μόνο για την έρευνα."
                                 : family.uses;
    return "τίτλος: " + platform::toUtf8(element.greekName) + "\nθέμα: " + family.topic +
           "\nαναζήτηση: " + std::string(element.englishName) + "\n---\n" + leadSentences(element) +
           "\n\n::: στοιχείο " + std::string(element.symbol) + "\n:::\n\n" + discoverySentence(element) +
           ' ' + uses + "\n\n## Ισότοπα\n\n" + isotopeSentence(element, isotopes) + "\n\n" +
           isotopeTable(element, isotopes);
}

}  // namespace contentc
