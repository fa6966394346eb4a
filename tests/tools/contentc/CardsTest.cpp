#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "formats/DataSetFile.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/cards/CompoundCard.h"
#include "tools/contentc/cards/ElementCard.h"
#include "tools/contentc/cards/ElementPage.h"
#include "tools/contentc/cards/Formula.h"

namespace contentc {
namespace {

/// Rows as `name: value`.
std::vector<std::string> shown(const std::vector<CardRow>& rows) {
    std::vector<std::string> texts;
    texts.reserve(rows.size());
    for (const CardRow& row : rows) texts.push_back(row.name + ": " + row.value);
    return texts;
}

formats::DataSet compounds() {
    const auto decoded =
        formats::decodeDataSet(platform::fromUtf8("number: 1\n"
                                                  "title: Ενώσεις\n"
                                                  "column: text | Όνομα\n"
                                                  "column: formula | Τύπος\n"
                                                  "column: number | Σημείο τήξης | °C\n"
                                                  "column: number | Σημείο βρασμού | °C\n"
                                                  "graph: 3 4\n"
                                                  "---\n"
                                                  "νερό\tH2O\t0\t100\n"
                                                  "αιθίνιο (ακετυλένιο)\tC2H2\t\t-84\n"
                                                  "αιθανόλη\tC2H6O\t-114\t78\n"
                                                  "διμεθυλαιθέρας\tC2H6O\t-141\t-25\n"));
    return decoded.set.value_or(formats::DataSet{});
}

TEST(ElementCard, TellsUnitsConditionsAndWhatMakesAnElementSpecial) {
    const std::pair<int, std::vector<std::string>> elements[] = {
        {11,
         {"Κατηγορία: αλκάλιο, ομάδα 1, περίοδος 3, τομέας s",
          "Κατανομή ηλεκτρονίων: 2, 8, 1<BR>[Ne]&nbsp;3s<SUP>1</SUP>",
          "Σημείο τήξης (1 atm): 97,8&nbsp;&deg;C", "Σημείο βρασμού (1 atm): 883&nbsp;&deg;C",
          "Πυκνότητα (20&nbsp;&deg;C): 0,971&nbsp;g/cm<SUP>3</SUP>", "Ηλεκτραρνητικότητα: 0,93",
          "Αριθμοί οξείδωσης: +1", "Ανακάλυψη: 1807"}},
        {2,
         {"Κατηγορία: ευγενές αέριο, ομάδα 18, περίοδος 1, τομέας s",
          "Κατανομή ηλεκτρονίων: 2<BR>1s<SUP>2</SUP>", "Τήξη υπό πίεση: &minus;272,2&nbsp;&deg;C",
          "Σημείο βρασμού (1 atm): &minus;268,9&nbsp;&deg;C",
          "Πυκνότητα (0&nbsp;&deg;C, 1 atm): 0,1785&nbsp;g/L", "Αριθμοί οξείδωσης: 0", "Ανακάλυψη: 1895"}},
        {118,
         {"Κατηγορία: ευγενές αέριο, ομάδα 18, περίοδος 7, τομέας p",
          "Κατανομή ηλεκτρονίων: 2, 8, 18, 32, 32, 18, 8<BR>[Rn]&nbsp;5f<SUP>14</SUP>&nbsp;6d<SUP>10</SUP>"
          "&nbsp;7s<SUP>2</SUP>&nbsp;7p<SUP>6</SUP> (υπολογισμένη)",
          "Ανακάλυψη: 2002"}}};
    for (const auto& [number, rows] : elements)
        EXPECT_EQ(shown(elementRows(*controls::findElement(number))), rows) << number;
    const std::string carbon = elementCard(*controls::findElement(6), {});
    EXPECT_NE(carbon.find("<TH>Εξάχνωση (1 atm)</TH><TD>3825&nbsp;&deg;C</TD>"), std::string::npos);
    EXPECT_NE(carbon.find("<SPAN CLASS=\"mass\">12,011</SPAN>"), std::string::npos);
}

TEST(ElementCard, ARowOfTheAuthorTakesThePlaceOfTheDatasRow) {
    const auto rows = withRowsOfAuthor({{"Τήξη (1 atm)", "1"}, {"Ανακάλυψη", "1807"}},
                                       {{"Ανακάλυψη", "Davy"}, {"ΤΗΞΗ", "2"}, {"Χρώμα", "3"}});
    EXPECT_EQ(shown(rows), (std::vector<std::string>{"ΤΗΞΗ: 2", "Ανακάλυψη: Davy", "Χρώμα: 3"}));
}

TEST(ElementPage, SpeaksRightGreekOfTheData) {
    EXPECT_EQ(elementPageSource(*controls::findElement(29), {"Μέταλλα", "Χρήσιμα."}),
              "τίτλος: Χαλκός\n"
              "θέμα: Μέταλλα\n"
              "αναζήτηση: Copper\n"
              "---\n"
              "Ο χαλκός (Cu) είναι στοιχείο μετάπτωσης με ατομικό αριθμό 29. Ανήκει στην ομάδα 11 και στην "
              "περίοδο 4 και στους 25 °C βρίσκεται σε στερεή κατάσταση.\n\n"
              "::: στοιχείο Cu\n:::\n\n"
              "Είναι γνωστός από την αρχαιότητα. Χρήσιμα.\n\n"
              "## Ισότοπα\n\n"
              "Στη φύση είναι μείγμα δύο [[ισοτόπων]].\n\n"
              "| Ισότοπο | % στη φύση | Χρόνος υποδιπλασιασμού |\n|---|---:|---|\n"
              "| χαλκός-63 | 69,15 | σταθερό |\n"
              "| χαλκός-65 | 30,85 | σταθερό |\n"
              "| χαλκός-67 | – | 2,58 ημέρες |\n");
    const std::pair<int, std::vector<const char*>> cases[] = {
        {43, {"Το τεχνήτιο", "Παρασκευάστηκε για πρώτη φορά το 1937. Χρήσιμα.", "Όλα τα ισότοπά του"}},
        {58, {"Ανήκει στην περίοδο 6 και"}},
        {83, {"$2,01·10^19$ χρόνια", "Στη φύση υπάρχει ένα μόνο"}},
        {118,
         {"Ανήκει στην ομάδα 18 και στην περίοδο 7.", "μόνο για την έρευνα", "Στη φύση δεν υπάρχει. Όλα"}}};
    for (const auto& [number, texts] : cases) {
        const std::string source = elementPageSource(*controls::findElement(number), {"Θέμα", "Χρήσιμα."});
        for (const char* text : texts)
            EXPECT_NE(source.find(text), std::string::npos) << text << '\n' << source;
    }
}

TEST(CompoundCard, IsFoundByNameOrFormula) {
    const FormulaHtml asWritten = [](std::string_view formula) { return std::string(formula); };
    using Rows = std::vector<std::string>;
    const Rows water{"Τύπος: H2O", "Μάζα του ενός mol: 18,02&nbsp;g/mol",
                     "Σημείο τήξης (1 atm): 0&nbsp;&deg;C", "Σημείο βρασμού (1 atm): 100&nbsp;&deg;C"};
    const Rows ethyne{"Τύπος: C2H2", "Μάζα του ενός mol: 26,04&nbsp;g/mol",
                      "Σημείο βρασμού (1 atm): &minus;84&nbsp;&deg;C"};
    const Rows eitherEther{"Τύπος: C2H6O", "Μάζα του ενός mol: 46,07&nbsp;g/mol"};
    const std::pair<const char*, Rows> cases[] = {
        {"Νερό", water}, {"H2O", water}, {"αιθινιο", ethyne}, {"ακετυλένιο", ethyne}, {"C2H6O", eitherEther}};
    for (const auto& [name, rows] : cases) {
        const auto found = compoundRows(compounds(), name, asWritten);
        EXPECT_EQ(shown(found.value_or(std::vector<CardRow>{})), rows) << name;
    }
    EXPECT_FALSE(compoundRows(compounds(), "σαπούνι", asWritten));
}

TEST(Formula, HasAMass) {
    const std::pair<const char*, const char*> cases[] = {{"NaCl", "58,44"},
                                                         {"Ca(OH)2", "74,09"},
                                                         {"CuSO4*5H2O", "249,68"},
                                                         {"PbO2", "239,2"},
                                                         {"(NH4)2Cr2O7", "252,06"}};
    for (const auto& [formula, mass] : cases) {
        const auto atoms = atomsOf(formula);
        ASSERT_TRUE(atoms) << formula;
        EXPECT_EQ(molarMassText(*atoms), mass) << formula;
    }
    for (const char* wrong : {"", "H2O)", "(H2O", "()2", "Xx", "h2o", "NaCl*", "H99999", "2", "H2 O"})
        EXPECT_FALSE(atomsOf(wrong)) << wrong;
}

}  // namespace
}  // namespace contentc
