#include <gtest/gtest.h>

#include <string>

#include "tools/elementc/IsotopeReader.h"
#include "tools/elementc/IsotopeWriter.h"

namespace elementc {
namespace {

/// The corrections of the text, applied to an empty list with the elements H and He.
Result<Isotopes> corrected(const std::string& text) {
    const auto corrections = readTable("number\tsymbol\tmass number\tfield\tvalue\n" + text, "c");
    const auto own = readTable("number\tsymbol\n1\tH\n2\tHe\n", "o");
    EXPECT_EQ(corrections.message() + own.message(), "");
    return correctIsotopes({}, *corrections, *own);
}

/// One stable isotope for each element.
Isotopes oneForEach() {
    Isotopes isotopes;
    for (int element = 1; element <= elementCount; ++element) isotopes[{element, 2 * element}] = {"100", 0};
    return isotopes;
}

TEST(IsotopeCompiler, ReadsAbundanceAndHalfLifeInSecondsOrYears) {
    const auto isotope = [](const std::string& number, const std::string& values) {
        return "<isotope number=\"" + number + "\"><scalar dictRef=\"bo:atomicNumber\">19</scalar>" + values +
               "</isotope>";
    };
    const std::string natural = "<scalar dictRef=\"bo:relativeAbundance\">0.0117</scalar>";
    const std::string years = R"(<scalar dictRef="bo:halfLife" units="units:y">2</scalar>)";
    const std::string seconds = R"(<scalar dictRef="bo:halfLife" units="siUnits:s">44496</scalar>)";
    const auto read = readIsotopes("<cml><metadataList/><isotopeList>" + isotope("40", natural + years) +
                                       isotope("42", seconds) + "</isotopeList></cml>",
                                   "i.xml");
    ASSERT_EQ(read.message(), "");
    EXPECT_EQ(*read, (Isotopes{{{19, 40}, {"0.0117", 2.0 * 31'556'952}}, {{19, 42}, {"", 44496}}}));
    EXPECT_TRUE(readIsotopes("<cml>\n<isotopeList>", "i.xml").message().starts_with("i.xml:2: "));
}

TEST(IsotopeCompiler, ACorrectionAddsReplacesAndRemoves) {
    const auto done = corrected(
        "1\tH\t3\thalf-life\t2 d\n1\tH\t2\tabundance\t0.01\n1\tH\t2\thalf-life\t3 "
        "s\n1\tH\t2\thalf-life\t-\n");
    ASSERT_EQ(done.message(), "");
    EXPECT_EQ(*done, (Isotopes{{{1, 2}, {"0.01", 0}}, {{1, 3}, {"", 172'800}}}));
    const std::pair<std::string, std::string> wrong[] = {
        {"1\tHe\t3\thalf-life\t2 d\n", "c:2: number and symbol do not agree"},
        {"2\tHe\t1\thalf-life\t2 d\n", "c:2: no mass number"},
        {"1\tH\t3\tspin\t1\n", "c:2: no field \"spin\""},
        {"1\tH\t3\thalf-life\t2 weeks\n", "c:2: no half-life: 2 weeks"}};
    for (const auto& [text, message] : wrong) EXPECT_EQ(corrected(text).message(), message);
}

TEST(IsotopeCompiler, WritesNaturalOnesAndTheLongestLived) {
    Isotopes isotopes = oneForEach();
    for (int extra = 1; extra <= 6; ++extra) isotopes[{5, 10 + extra}].halfLife = extra;
    isotopes[{5, 17}] = {};
    const auto written = writeIsotopes(isotopes);
    ASSERT_EQ(written.message(), "");
    EXPECT_EQ(written->find("{5, 12,"), std::string::npos);
    EXPECT_NE(written->find("Isotope{5, 10, {\"100\"}, 0},\n    Isotope{5, 13, {\"\"}, 3},"),
              std::string::npos);
    EXPECT_EQ(written->find("{5, 17,"), std::string::npos);

    isotopes[{5, 10}].abundance = "98";
    EXPECT_TRUE(writeIsotopes(isotopes).message().starts_with("element 5: the abundances add up to 98"));
    isotopes = oneForEach();
    isotopes.erase({7, 14});
    EXPECT_EQ(writeIsotopes(isotopes).message(), "element 7: no isotope");
}

}  // namespace
}  // namespace elementc
