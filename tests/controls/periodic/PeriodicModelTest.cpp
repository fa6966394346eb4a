#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "controls/periodic/ElementCard.h"
#include "controls/periodic/ValueText.h"
#include "controls/periodic/model/ElementKinds.h"
#include "controls/periodic/model/QuantityScale.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {
namespace {

TEST(PeriodicState, EveryStateComesBackFromItsHalves) {
    for (int code = 0; code < viewCount; ++code) {
        const TableView view = *viewOfCode(code);
        for (int highlighted = 0; highlighted <= kindCount(view); ++highlighted) {
            for (const bool other : {false, hasOtherScale(view)}) {
                for (const int kelvin : {0, 1, 297, 298, 299, 6000}) {
                    for (const int year : {1650, 1651, 1899, 2009, 2010}) {
                        const TableState state{.selected = kelvin % 119,
                                               .view = view,
                                               .otherScale = other,
                                               .highlighted = highlighted,
                                               .kelvin = kelvin,
                                               .year = year};
                        EXPECT_EQ(stateOf(firstHalf(state), secondHalf(state)), state);
                    }
                }
            }
        }
    }
}

TEST(PeriodicState, AnyTwoNumbersMakeAStateThatStays) {
    std::uint32_t random = 1;
    const auto next = [&] { return static_cast<std::int32_t>(random = random * 1664525U + 1013904223U); };
    for (int i = 0; i < 20000; ++i) {
        // Few bits set, so that the halves do not all count as none.
        const TableState state = stateOf(next() & 0x1FFFF, next() & 0x1FFFFFFF);
        EXPECT_TRUE(state.selected == 0 || findElement(state.selected));
        EXPECT_LE(state.highlighted, kindCount(state.view));
        EXPECT_TRUE(state.kelvin >= minKelvin && state.kelvin <= maxKelvin);
        EXPECT_TRUE(state.year >= minYear && state.year <= maxYear);
        EXPECT_EQ(stateOf(firstHalf(state), secondHalf(state)), state);
    }
}

TEST(ElementKinds, CountsOfTheKinds) {
    const auto count = [](TableView view, int kind, double kelvin) {
        int found = 0;
        for (const Element& element : elements()) found += kindOf(element, view, kelvin) == kind ? 1 : 0;
        return found;
    };
    for (const TableView view : viewOrder) {
        if (quantityOf(view)) continue;
        int sum = 0;
        for (int kind = 1; kind <= kindCount(view); ++kind) {
            EXPECT_FALSE(kindName(view, kind).empty());
            sum += count(view, kind, 298);
        }
        EXPECT_EQ(sum, elementCount);
    }
    EXPECT_EQ(count(TableView::metals, 2, 298), 6);
    EXPECT_EQ(count(TableView::matter, 2, 298), 2);
    EXPECT_EQ(count(TableView::matter, 2, 303), 5) << "and francium, caesium, gallium";
    EXPECT_EQ(kindOf(*findElement(1), TableView::density, 298), 0);
    EXPECT_EQ(count(TableView::blocks, 1, 298), 14) << "with helium";
    EXPECT_EQ(count(TableView::blocks, 4, 298), 30);
    EXPECT_EQ(count(TableView::groups, 18, 298), 7);
    EXPECT_EQ(count(TableView::groups, kindWithoutGroup, 298), 30);
}

TEST(TableView, LaterViewsLeaveTheCodesInBookmarksAsTheyAreAndTheStripShowsEachOnce) {
    EXPECT_EQ(viewCode(TableView::discovery), 9);
    EXPECT_EQ(viewCode(TableView::crust), 10);
    TableView view = TableView::families;
    for (int i = 0; i < viewCount; ++i) {
        EXPECT_EQ(view == TableView::families, i == 0);
        view = viewBeside(view, 1);
    }
    EXPECT_EQ(view, TableView::families);
    EXPECT_EQ(viewBeside(view, -1), TableView::crust);
    // What earlier versions wrote for the tenth family and the year 1800.
    EXPECT_EQ(stateOf(26, 10 | (1800 << 17)), (TableState{.selected = 26, .highlighted = 10, .year = 1800}));
}

TEST(QuantityScale, EveryValueHasAPlaceAndOnlyTinyAbundancesShareTheEnd) {
    for (int code = 0; code < quantityCount; ++code) {
        const auto quantity = static_cast<Quantity>(code);
        for (const bool other : {false, true}) {
            const QuantityScale scale(quantity, other);
            for (const Element& element : elements()) {
                const auto value = quantityValue(element, quantity);
                if (!value) continue;
                const bool below = *value < scale.low();
                EXPECT_TRUE(!below || quantity == Quantity::crust || quantity == Quantity::discovery)
                    << element.symbol << ' ' << code;
                EXPECT_LE(*value, scale.high()) << element.symbol << ' ' << code;
            }
            EXPECT_EQ(scale.position(scale.low()), 0);
            EXPECT_EQ(scale.position(scale.high()), 1);
            EXPECT_EQ(scale.position(-1), 0);
            EXPECT_EQ(scale.position(1e9), 1);
            const auto ticks = scale.ticks();
            EXPECT_GE(ticks.size(), 3U);
            EXPECT_LE(ticks.size(), 12U);
            for (const double tick : ticks) EXPECT_TRUE(tick >= scale.low() && tick <= scale.high()) << tick;
        }
    }
    EXPECT_NEAR(QuantityScale(Quantity::crust).position(10), 0.5, 1e-9);
    EXPECT_NEAR(QuantityScale(Quantity::melting).position(1000), 0.2, 1e-9);
    EXPECT_FALSE(QuantityScale(Quantity::discovery, true).logarithmic());
}

TEST(ValueText, NumbersAsTheyAreReadInGreek) {
    struct Case {
        double value;
        const char* text;
    };
    const Case cases[] = {{0.001, "0,001"}, {0.0001, "10^−4^"}, {5.5e-10, "5,5·10^−10^"},
                          {1e6, "10^6^"},   {461000, "461000"}, {0.5, "0,5"},
                          {0, "0"}};
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(numberText(value).toStdString(), text);
    }
    EXPECT_EQ(temperatureText(0), "0 K = −273 °C");
    EXPECT_EQ(temperatureText(298), "298 K = 25 °C");
    EXPECT_EQ(temperatureText(273), "273 K = 0 °C");
}

TEST(ValueText, ValuesWithTheirUnits) {
    struct Case {
        int number;
        Quantity quantity;
        const char *inCell, *onCard;
    };
    for (const auto& [number, quantity, inCell, onCard] :
         std::vector<Case>{{26, Quantity::melting, "1811", "1811 K = 1538 °C"},
                           {80, Quantity::melting, "234", "234,32 K = −38,8 °C"},
                           {2, Quantity::boiling, "4,22", "4,22 K = −268,9 °C"},
                           {8, Quantity::crust, "461000", "46,1 %"},
                           {89, Quantity::crust, "6·10^−10^", "5,5·10^−10^ mg/kg"},
                           {1, Quantity::density, "9·10^−5^", "0,00008988 g/cm³"},
                           {79, Quantity::discovery, "αρχαία", "αρχαιότητα"},
                           {26, Quantity::ionisation, "762", "762,5 kJ/mol"},
                           {17, Quantity::electronAffinity, "349", "348,6 kJ/mol"},
                           {92, Quantity::electronAffinity, "30,4", "30,4 kJ/mol"},
                           {10, Quantity::electronAffinity, "≤ 0", "≤ 0 kJ/mol"},
                           {43, Quantity::electronAffinity, "", "–"},
                           {55, Quantity::vanDerWaalsRadius, "343", "343 pm"},
                           {118, Quantity::density, "", "–"}}) {
        EXPECT_EQ(valueText(*findElement(number), quantity).toStdString(), inCell) << number;
        EXPECT_EQ(valueWithUnit(*findElement(number), quantity).toStdString(), onCard) << number;
    }
}

TEST(ElementCard, ConfigurationAndShells) {
    EXPECT_EQ(configurationText(*findElement(26)), QStringLiteral("[Ar] 3d^6^ 4s^2^"));
    EXPECT_EQ(configurationText(*findElement(1)), QStringLiteral("1s^1^"));
    EXPECT_EQ(shellText(*findElement(26)), QStringLiteral("2 · 8 · 14 · 2"));
}

TEST(ElementCard, TheViewsOwnFactComesFirst) {
    const Element& mercury = *findElement(80);
    TableState state;
    EXPECT_EQ(factsOf(mercury, state).front().value, QStringLiteral("υγρό"));
    state.view = TableView::matter;
    state.kelvin = 700;
    EXPECT_EQ(factsOf(mercury, state).front().value, QStringLiteral("αέριο"));
    state.view = TableView::covalentRadius;
    const auto facts = factsOf(mercury, state);
    EXPECT_EQ(facts.front().value, QStringLiteral("132 pm"));
    EXPECT_EQ(facts[1].value, QStringLiteral("υγρό")) << "the temperature belongs to the view of matter";
    EXPECT_EQ(facts.size(), static_cast<std::size_t>(quantityCount) + 3);
    const auto oxidation = [&](int number) {
        const auto all = factsOf(*findElement(number), state);
        return std::ranges::find(all, QStringLiteral("Αριθμοί οξείδωσης"), &Fact::label)->value.toStdString();
    };
    EXPECT_EQ(oxidation(7), "−3, +1, +2, +3, +4, +5");
    EXPECT_EQ(oxidation(10), "0");
    EXPECT_EQ(oxidation(118), "–");
    EXPECT_EQ(facts[9].value, QStringLiteral("Hg-202, 29,86 %"));
    EXPECT_EQ(factsOf(*findElement(61), state)[9].value, QStringLiteral("Pm-145, 17,7 χρόνια"));
    state.view = TableView::boiling;
    EXPECT_EQ(factsOf(*findElement(33), state).front().label, QStringLiteral("Εξάχνωση"));
}

}  // namespace
}  // namespace controls::periodic
