#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "controls/elements/ElectronShells.h"
#include "controls/elements/Element.h"
#include "controls/elements/ElementQuantity.h"
#include "controls/elements/ElementSearch.h"
#include "controls/elements/Isotope.h"
#include "controls/elements/TypeAhead.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"

namespace controls {
namespace {

using namespace platform::literals;

int numberOf(std::string_view symbol) {
    const auto found = std::ranges::find(elements(), symbol, &Element::symbol);
    return found == elements().end() ? 0 : found->number;
}

TEST(ElementData, NumbersRunFrom1To118AndNoSymbolOrNameOccursTwice) {
    std::set<std::string_view> symbols;
    std::set<std::string_view> names;
    int expected = 1;
    for (const Element& element : elements()) {
        EXPECT_EQ(element.number, expected++);
        EXPECT_TRUE(symbols.insert(element.symbol).second) << element.symbol;
        EXPECT_TRUE(names.insert(element.greekName).second) << element.englishName;
        EXPECT_TRUE(names.insert(element.englishName).second) << element.englishName;
    }
}

TEST(ElementData, MassesAscendExceptWhereNatureDoesNot) {
    std::vector<std::string> pairs;
    for (int number = 2; number <= elementCount; ++number) {
        const Element& before = *findElement(number - 1);
        const Element& element = *findElement(number);
        if (*element.mass.value() < *before.mass.value()) {
            pairs.push_back(std::string(before.symbol) + '-' + std::string(element.symbol));
        }
    }
    EXPECT_EQ(pairs, (std::vector<std::string>{"Ar-K", "Co-Ni", "Te-I", "Th-Pa", "U-Np", "Pu-Am", "Bh-Hs"}));
}

TEST(ElementData, FiguresAreWellFormedAndPlausible) {
    double crust = 0;
    for (const Element& element : elements()) {
        SCOPED_TRACE(element.symbol);
        for (const Figure* figure :
             {&element.mass, &element.meltingPoint, &element.boilingPoint, &element.density,
              &element.electronegativity, &element.ionisation, &element.covalentRadius, &element.crust}) {
            EXPECT_EQ(figure->known(), figure->value().has_value());
            EXPECT_EQ(figure->digits.find_first_not_of("0123456789."), std::string_view::npos);
            if (figure->known()) {
                EXPECT_GT(*figure->value(), 0);
            }
        }
        EXPECT_LE(element.electronegativity.value().value_or(0), 3.98);
        EXPECT_LT(element.density.value().value_or(0), 23);
        const auto melting = element.meltingPoint.value();
        const auto boiling = element.boilingPoint.value();
        if (melting && boiling) {
            const bool sublimes = element.symbol == "As" || element.symbol == "C";
            EXPECT_EQ(element.sublimes(), sublimes);
            EXPECT_EQ(element.meltsUnderPressureOnly(), sublimes || element.symbol == "He");
        }
        EXPECT_TRUE(element.discovered == antiquity ||
                    (element.discovered >= 1250 && element.discovered <= 2010));
        crust += element.crust.value().value_or(0);
    }
    EXPECT_NEAR(crust, 1e6, 1e4) << "the crust consists of its elements";
}

TEST(ElementData, GasesAreAsDenseAsTheGasLawTells) {
    constexpr double litresPerMole = 22.414;
    int gases = 0;
    for (const Element& element : elements()) {
        if (element.matter() != Matter::gas) continue;
        ++gases;
        const bool diatomic = element.family != Family::nobleGas;
        const double expected = *element.mass.value() * (diatomic ? 2 : 1) / litresPerMole / 1000;
        EXPECT_NEAR(*element.density.value(), expected, expected * 0.02) << element.symbol;
    }
    EXPECT_EQ(gases, 11);
}

TEST(ElementData, PlaceInTheTable) {
    struct Case {
        std::string_view symbol;
        int period, group;
        Block block;
    };
    const Case cases[] = {{"H", 1, 1, Block::s},   {"He", 1, 18, Block::s}, {"Be", 2, 2, Block::s},
                          {"B", 2, 13, Block::p},  {"Ar", 3, 18, Block::p}, {"Sc", 4, 3, Block::d},
                          {"Zn", 4, 12, Block::d}, {"Xe", 5, 18, Block::p}, {"Ba", 6, 2, Block::s},
                          {"La", 6, 0, Block::f},  {"Lu", 6, 0, Block::f},  {"Hf", 6, 4, Block::d},
                          {"Rn", 6, 18, Block::p}, {"Ac", 7, 0, Block::f},  {"Lr", 7, 0, Block::f},
                          {"Rf", 7, 4, Block::d},  {"Nh", 7, 13, Block::p}, {"Og", 7, 18, Block::p}};
    for (const auto& [symbol, period, group, block] : cases) {
        const Element& element = *findElement(numberOf(symbol));
        EXPECT_EQ(std::tuple(element.period(), element.group(), element.block()),
                  std::tuple(period, group, block))
            << symbol;
    }
    EXPECT_EQ(findElement(0), nullptr);
    EXPECT_EQ(findElement(119), nullptr);
}

TEST(ElementData, MatterAtATemperature) {
    struct Case {
        std::string_view symbol;
        double kelvin;
        Matter matter;
    };
    const Case cases[] = {
        {"Fe", 0, Matter::solid},      {"Fe", 1810.9, Matter::solid}, {"Fe", 1811, Matter::liquid},
        {"Fe", 3134, Matter::gas},     {"He", 0, Matter::liquid},     {"He", 4.22, Matter::gas},
        {"As", 886, Matter::solid},    {"As", 887, Matter::gas},      {"As", 1100, Matter::gas},
        {"C", 4000, Matter::solid},    {"C", 4100, Matter::gas},      {"Bk", 1200, Matter::solid},
        {"Bk", 1300, Matter::unknown}, {"Og", 298, Matter::unknown},  {"W", 6000, Matter::gas}};
    for (const auto& [symbol, kelvin, matter] : cases) {
        EXPECT_EQ(findElement(numberOf(symbol))->matterAt(kelvin), matter) << symbol << ' ' << kelvin;
    }
}

TEST(ElementData, ConfigurationsHoldAsManyElectronsAsTheAtom) {
    for (const Element& element : elements()) {
        const auto subshells = subshellsOf(element);
        const auto shells = shellsOf(element);
        EXPECT_EQ(std::accumulate(shells.begin(), shells.end(), 0), element.number) << element.symbol;
        EXPECT_EQ(static_cast<int>(shells.size()), element.symbol == "Pd" ? 4 : element.period());
        for (const Subshell& subshell : subshells) {
            const auto order = static_cast<int>(std::string_view("spdf").find(subshell.letter));
            EXPECT_LT(order, subshell.shell) << element.symbol;
            EXPECT_LE(subshell.electrons, 4 * order + 2) << element.symbol;
        }
    }
    EXPECT_EQ(shellsOf(*findElement(26)), (std::vector<int>{2, 8, 14, 2}));
    EXPECT_EQ(subshellsOf(*findElement(24)).back(), (Subshell{4, 's', 1}));
}

TEST(ElementData, ANonsensicalConfigurationHasNoShells) {
    Element element = *findElement(26);
    for (const std::string_view text :
         {"", "Fe 3d6", "Kr 5s1", "Ar 3g2", "Ar 3d", "Ar 3dx", "Ar 9s2", "Ar  4s2"}) {
        element.configuration = text;
        EXPECT_TRUE(shellsOf(element).empty()) << text;
    }
}

TEST(ElementIsotopes, TheirMassesMakeTheElementsMass) {
    for (const Element& element : elements()) {
        double sum = 0;
        for (const Isotope& isotope : isotopesOf(element))
            sum += isotope.massNumber * isotope.abundance.value().value_or(0) / 100;
        // An atom weighs up to 0.1 u less or more than its mass number tells.
        if (element.hasStandardMass()) {
            EXPECT_NEAR(sum, *element.mass.value(), 0.11) << element.symbol;
        } else {
            EXPECT_EQ(sum, 0) << element.symbol;
        }
    }
}

TEST(ElementIsotopes, HalfLivesHaveThreeDigitsAndTheUnitThatSuits) {
    const std::pair<std::pair<int, int>, const char*> cases[] = {{{6, 14}, "5730 χρόνια"},
                                                                 {{107, 270}, "1 λεπτό"},
                                                                 {{1, 3}, "12,3 χρόνια"},
                                                                 {{92, 238}, "4,47 δισεκατομμύρια χρόνια"},
                                                                 {{53, 131}, "8,02 ημέρες"},
                                                                 {{94, 239}, "24\u00A0100 χρόνια"},
                                                                 {{83, 209}, "2,01·10^19^ χρόνια"},
                                                                 {{11, 24}, "15 ώρες"},
                                                                 {{118, 294}, "0,7 ms"},
                                                                 {{8, 16}, "σταθερό"}};
    for (const auto& [key, text] : cases) {
        const auto all = isotopesOf(*findElement(key.first));
        const auto isotope = std::ranges::find(all, key.second, &Isotope::massNumber);
        ASSERT_NE(isotope, all.end()) << text;
        EXPECT_EQ(platform::toUtf8(halfLifeText(*isotope)), text);
    }
}

TEST(ElementQuantity, TextAndValueAreKnownTogether) {
    EXPECT_NEAR(*quantityValue(*findElement(26), Quantity::ionisation), 762.5, 0.05);
    EXPECT_EQ(findElement(10)->massText(), "20,180");
    EXPECT_EQ(findElement(43)->massText(), "[97]");
    for (const Element& element : elements()) {
        for (int code = 0; code < quantityCount; ++code) {
            const auto quantity = static_cast<Quantity>(code);
            EXPECT_EQ(quantityText(element, quantity).empty(), !quantityValue(element, quantity).has_value());
        }
    }
}

TEST(ElementSearch, SymbolThenStartOfANameInEitherLanguage) {
    struct Case {
        std::string_view typed, symbol;
    };
    const Case cases[] = {{"h", "H"},           {"HE", "He"},      {"hel", "He"},
                          {"co", "Co"},         {"cop", "Cu"},     {"σιδ"_gr, "Fe"},
                          {"ΣΊΔΗΡΟΣ"_gr, "Fe"}, {"ηλιο"_gr, "He"}, {"αινσταινιο"_gr, "Es"},
                          {"ogan", "Og"},       {"d", "Dy"}};
    for (const auto& [typed, symbol] : cases) {
        EXPECT_EQ(findElementByStart(typed), findElement(numberOf(symbol))) << typed;
    }
    EXPECT_EQ(findElementByStart(""), nullptr);
    EXPECT_EQ(findElementByStart("qq"), nullptr);
}

TEST(TypeAhead, LettersOfOneWordBelongTogetherUntilAPause) {
    TypeAhead typing;
    const auto type = [&](std::string_view characters, std::int64_t milliseconds) {
        const Element* found = typing.type(characters, milliseconds, findElementByStart);
        return found ? found->symbol : std::string_view();
    };
    EXPECT_EQ(type("c", 5000), "C");
    EXPECT_EQ(type("a", 5400), "Ca");
    EXPECT_EQ(type("a", 5400 + TypeAhead::pauseMilliseconds + 1), "Al");
    EXPECT_EQ(type("x", 6500), "Xe") << "a letter that leads nowhere starts a new word";
    EXPECT_EQ(type("q", 6600), "");
}

}  // namespace
}  // namespace controls
