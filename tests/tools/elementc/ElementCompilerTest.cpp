#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tools/elementc/BodrReader.h"
#include "tools/elementc/ElementMerge.h"
#include "tools/elementc/SourceTable.h"
#include "tools/elementc/TableWriter.h"

namespace elementc {
namespace {

constexpr std::string_view ownNames = "number\tsymbol\tGreek name\tfamily\tmass\n";
constexpr std::string_view correctionNames = "number\tsymbol\tfield\tvalue\n";

/// A list with all elements; each has the symbol "E" and its number.
Records allElements() {
    Records records;
    for (int number = 1; number <= elementCount; ++number) {
        records[number] = {{"symbol", "E" + std::to_string(number)},
                           {"name", "Name"},
                           {"melting", "100"},
                           {"discovered", "1800"}};
    }
    return records;
}

/// Rows of ours for all elements.
std::string allRows() {
    std::string text(ownNames);
    for (int number = 1; number <= elementCount; ++number) {
        const std::string digits = std::to_string(number);
        text.append(digits).append("\tE").append(digits).append("\tΌνομα\ttransition\t1.0\n");
    }
    return text;
}

Result<Records> merge(const std::string& corrections, const std::string& own) {
    const auto correctionRows = readTable(std::string(correctionNames) + corrections, "c");
    const auto ownRows = readTable(own, "o");
    EXPECT_EQ(correctionRows.message() + ownRows.message(), "");
    return mergeElements(allElements(), *correctionRows, *ownRows);
}

TEST(ElementCompiler, ReadsTheListAndTellsWhereItIsBroken) {
    const std::string atom =
        "<atom id=\"H\"><scalar dictRef=\"bo:atomicNumber\">1</scalar><label dictRef=\"bo:symbol\" "
        "value=\"H\"/>"
        "<scalar dictRef=\"bo:mass\">1</scalar>\n<scalar dictRef=\"bo:meltingpoint\"> 14.01 </scalar></atom>";
    const std::string dummy = "<atom><scalar dictRef=\"bo:atomicNumber\">0</scalar></atom>";
    const auto read = readBodr("<list>" + dummy + atom + "<other><x/></other></list>", "e.xml");
    EXPECT_EQ(read.message(), "");
    EXPECT_EQ(*read, (Records{{1, {{"symbol", "H"}, {"melting", "14.01"}}}}));
    EXPECT_TRUE(readBodr("<list>\n" + atom, "e.xml").message().starts_with("e.xml:3: "));
    EXPECT_FALSE(readBodr("", "e.xml").message().empty());
}

TEST(ElementCompiler, ACorrectionTakesThePlaceOfAValueOrRemovesIt) {
    const auto merged = merge("3\tX\tsymbol\tX\n3\tX\tmelting\t-\n4\tE4\tmelting\t7.5\n",
                              allRows().replace(allRows().find("E3\t"), 2, "X"));
    ASSERT_EQ(merged.message(), "");
    EXPECT_EQ(field(merged->at(3), "symbol"), "X");
    EXPECT_EQ(field(merged->at(3), "melting"), "");
    EXPECT_EQ(field(merged->at(4), "melting"), "7.5");
    const auto written = writeTable(*merged);
    EXPECT_EQ(written.message(), "");
    EXPECT_NE(written->find(R"({4, "E4", "Όνομα"_gr, "Name", transition, {"1.0"}, {"7.5"}, {},)"),
              std::string::npos);
}

TEST(ElementCompiler, NoFaultInTheTablesPassesUnseen) {
    struct Case {
        std::string corrections, own, message;
    };
    const std::string rows = allRows();
    const std::string names(ownNames);
    const Case cases[] = {{"0\tE1\tmelting\t1\n", rows, "c:2: no atomic number"},
                          {"119\tE1\tmelting\t1\n", rows, "c:2: no atomic number"},
                          {"1\tE1\tcolour\t1\n", rows, "c:2: no field \"colour\""},
                          {"1\tE2\tmelting\t1\n", rows, "c:2: number and symbol do not agree"},
                          {"", names + "2x\tE2\tn\tf\t1\n", "o:2: no such element"},
                          {"", names + "2\tE3\tn\tf\t1\n", "o:2: this is not the symbol of element 2"},
                          {"", rows + "5\tE5\tn\tf\t1\n", "o:120: the second row of this element"},
                          {"", rows.substr(0, rows.rfind("\n118\t") + 1), "no row for element 118"}};
    for (const auto& [corrections, own, message] : cases) {
        EXPECT_EQ(merge(corrections, own).message(), message);
    }
    EXPECT_EQ(readTable("# note\na\tb\n1\n", "t").message(), "t:3: 1 cells under 2 names");
}

TEST(ElementCompiler, WritesNoFigureThatIsNone) {
    struct Case {
        std::string field, value, message;
    };
    for (const auto& [field, value, message] : std::vector<Case>{
             {"mass", "", "element 9: no mass"},
             {"melting", "12,5", "element 9: melting is no decimal number"},
             {"boiling", "1.2.3", "element 9: boiling is no decimal number"},
             {"discovered", "-3", "element 9: the year is no number"},
             {"oxidation numbers", "+1 -1", "element 9: no list of oxidation numbers"},
             {"oxidation numbers", "+1  +2", "element 9: no list of oxidation numbers"},
             {"oxidation numbers", "1", "element 9: no list of oxidation numbers"},
             {"affinity", "-0.5", "element 9: affinity is no decimal number"},
             {"name", "a\"b", "element 9: a text with a quotation mark, backslash or line end"}}) {
        Records records = *merge("", allRows());
        records.at(9)[field] = value;
        EXPECT_EQ(writeTable(records).message(), message);
    }
}

}  // namespace
}  // namespace elementc
