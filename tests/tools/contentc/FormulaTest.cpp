#include "tools/contentc/markdown/Formula.h"

#include <gtest/gtest.h>

#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/markdown/Typography.h"

namespace {

// Here _ stands for the blank that does not break, so that it can be seen.
std::string withVisibleBlanks(std::string text) {
    for (std::size_t at = 0; (at = text.find("\u00A0", at)) != std::string::npos;) text.replace(at, 2, "_");
    return text;
}

TEST(Formula, IsSetAsWritten) {
    const struct {
        const char* source;
        const char* html;
    } cases[] = {
        {"H2SO4", "H<SUB>2</SUB>SO<SUB>4</SUB>"},
        {"Ca(OH)2", "Ca(OH)<SUB>2</SUB>"},
        {"Fe^3+", "Fe<SUP>3+</SUP>"},
        {"SO4^2-", "SO<SUB>4</SUB><SUP>2−</SUP>"},
        {"[Fe(CN)6]^4-", "[Fe(CN)<SUB>6</SUB>]<SUP>4−</SUP>"},
        {"2 H2 + O2 -> 2 H2O", "2_H<SUB>2</SUB> + O<SUB>2</SUB> → 2_H<SUB>2</SUB>O"},
        {"N2 + 3 H2 <=> 2 NH3", "N<SUB>2</SUB> + 3_H<SUB>2</SUB> ⇌ 2_NH<SUB>3</SUB>"},
        {"Fe^2+->Fe^3+ + e^-", "Fe<SUP>2+</SUP>→Fe<SUP>3+</SUP> + e<SUP>−</SUP>"},
        {"CuSO4*5H2O", "CuSO<SUB>4</SUB>·5H<SUB>2</SUB>O"},
        {"Fe2O3 * x H2O", "Fe<SUB>2</SUB>O<SUB>3</SUB> · x H<SUB>2</SUB>O"},
        {"^14_6C -> ^14_7N + ^0_-1e",
         "<SPAN CLASS=\"nuclide\"><SUP>14</SUP><SUB>6</SUB></SPAN>C → "
         "<SPAN CLASS=\"nuclide\"><SUP>14</SUP><SUB>7</SUB></SPAN>N + "
         "<SPAN CLASS=\"nuclide\"><SUP>0</SUP><SUB>−1</SUB></SPAN>e"},
        {"^235U", "<SUP>235</SUP>U"},
        {"K_a", "K<SUB>a</SUB>"},
        {"K_{sp}", "K<SUB>sp</SUB>"},
        {"C_nH_{2n+2}", "C<SUB>n</SUB>H<SUB>2n+2</SUB>"},
        {"x^{y_1}", "x<SUP>y<SUB>1</SUB></SUP>"},
        {"10^-7", "10<SUP>−7</SUP>"},
        {"6,02 x 10^23", "6,02_×_10<SUP>23</SUP>"},
        {"g/cm^3", "g/cm<SUP>3</SUP>"},
        {"144 000 L : 80 °C", "144_000_L : 80_°C"},
        {"1s^2 2s^2 2p^6", "1s<SUP>2</SUP> 2s<SUP>2</SUP> 2p<SUP>6</SUP>"},
        {"-5 - 3", "−5 − 3"},
        {"CH3-CH=CH2", "CH<SUB>3</SUB>–CH=CH<SUB>2</SUB>"},
        {"-OH", "–OH"},
        {"-COO^-", "–COO<SUP>−</SUP>"},
        {"-ΔH", "−ΔH"},
        {"-log[H3O^+]", "−log[H<SUB>3</SUB>O<SUP>+</SUP>]"},
        {"HC#CH", "HC≡CH"},
        {"C-14", "C-14"},
        {"ΔH < 0", "ΔH &lt; 0"},
        {"a >= b", "a ≥ b"},
    };
    for (const auto& [source, html] : cases) {
        const contentc::Formula formula = contentc::compileFormula(source);
        EXPECT_EQ(withVisibleBlanks(formula.html), html) << source;
        EXPECT_EQ(formula.fault, nullptr) << source;
    }
}

TEST(Formula, TellsWhatIsWrong) {
    std::string deep;
    for (int i = 0; i < 30000; ++i) deep += "x_{";
    deep += 'a' + std::string(30000, '}');
    const std::pair<std::string, const contentc::Message*> cases[] = {
        {deep, &contentc::say::bracesAreTooDeep},    {" ", &contentc::say::emptyFormula},
        {"K_{sp", &contentc::say::braceIsNotClosed}, {"a^", &contentc::say::nothingToLift},
        {"K_ ", &contentc::say::nothingToLower},     {"{a}", &contentc::say::strayBrace},
        {"x^{a_}", &contentc::say::nothingToLower}};
    for (const auto& [source, fault] : cases) {
        const contentc::Message* found = contentc::compileFormula(source).fault;
        ASSERT_TRUE(found) << source.substr(0, 20);
        EXPECT_EQ(found->english, fault->english) << source.substr(0, 20);
    }
}

TEST(Typography, KeepsNumbersTogetherAndSetsSigns) {
    const std::pair<const char*, const char*> cases[] = {
        {"25 °C και 4 %, 18 g/mol", "25_°C και 4_%, 18_g/mol"},
        {"50 000 άτομα, 1 234 567", "50_000 άτομα, 1_234_567"},
        {"το 2019 118 στοιχεία", "το 2019 118 στοιχεία"},
        {"5 γραμμάρια, 3 Κήποι, 2 mm", "5 γραμμάρια, 3 Κήποι, 2_mm"},
        {"-5 (-3) 10-20 x-1", "−5 (−3) 10-20 x-1"},
        {"1776--1856", "1776–1856"},
        {"το 460 π.Χ.", "το 460_π.Χ."},
        {"7 \U000F0000", "7_\U000F0000"},
    };
    for (const auto& [text, set] : cases) EXPECT_EQ(withVisibleBlanks(contentc::typeset(text)), set) << text;
}

}  // namespace
