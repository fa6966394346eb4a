#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "controls/common/Appearance.h"
#include "controls/common/Contrast.h"
#include "controls/dataanalyser/look/CategoryLook.h"
#include "controls/periodic/CellLook.h"
#include "controls/periodic/ColorScale.h"
#include "controls/periodic/model/ElementKinds.h"

namespace controls::periodic {
namespace {

using Three = std::array<double, 3>;

double decoded(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

Three linearRgb(const QColor& color) {
    return {decoded(color.redF()), decoded(color.greenF()), decoded(color.blueF())};
}

/// The colour in CIELAB (D65). The evenness of the scale is judged in this space, though it was made in
/// another.
Three lab(const Three& rgb) {
    constexpr std::array<Three, 3> toXyz{{{0.4124564, 0.3575761, 0.1804375},
                                          {0.2126729, 0.7151522, 0.0721750},
                                          {0.0193339, 0.1191920, 0.9503041}}};
    constexpr Three white{0.95047, 1, 1.08883};
    Three f{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double share =
            std::max((toXyz[i][0] * rgb[0] + toXyz[i][1] * rgb[1] + toXyz[i][2] * rgb[2]) / white[i], 0.0);
        f[i] = share > 0.008856 ? std::cbrt(share) : 7.787 * share + 16.0 / 116;
    }
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

double distance(const Three& one, const Three& other) {
    return std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]);
}

/// A kind of colour vision: how a colour is seen by eyes that lack one kind of cone (G. Machado et al.,
/// 2009).
struct Vision {
    const char* name;
    std::array<Three, 3> matrix;

    Three seen(const QColor& color) const {
        const Three rgb = linearRgb(color);
        Three result{};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t k = 0; k < 3; ++k) result[i] += matrix[i][k] * rgb[k];
        }
        return lab(result);
    }
};

const std::vector<Vision> visions{
    {"usual", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanopia",
     {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}}},
    {"deuteranopia",
     {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}},
    {"tritanopia",
     {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}}};

TEST(ColorScale, GetsDarkerByEvenStepsForEveryKindOfColourVision) {
    constexpr int steps = 10;
    for (const Vision& vision : visions) {
        double minStep = 1000;
        double maxStep = 0;
        for (int i = 0; i < steps; ++i) {
            const Three here = vision.seen(scaleColor(i / double(steps)));
            const Three next = vision.seen(scaleColor((i + 1) / double(steps)));
            EXPECT_GT(here[0], next[0] + 3) << vision.name << ' ' << i;
            minStep = std::min(minStep, distance(here, next));
            maxStep = std::max(maxStep, distance(here, next));
        }
        EXPECT_LT(maxStep / minStep, 2.2) << vision.name << ' ' << minStep << ' ' << maxStep;
    }
}

TEST(CellLook, TextCanBeReadOnEveryCellInEveryState) {
    for (int code = 0; code < viewCount; ++code) {
        TableState state;
        state.view = *viewOfCode(code);
        for (const int kelvin : {0, 298, 1500, 6000}) {
            state.kelvin = kelvin;
            state.year = 1650 + kelvin / 20;
            for (int highlighted = 0; highlighted <= kindCount(state.view); ++highlighted) {
                for (const Element& element : elements()) {
                    const CellLook look = lookOf(element, state, highlighted);
                    std::vector<QColor> grounds{look.fill};
                    if (look.ground == CellLook::Ground::hatched) grounds = {noData, noDataStroke};
                    if (look.ground == CellLook::Ground::empty) grounds = {appearance::ground};
                    for (const QColor& below : grounds) {
                        EXPECT_GE(appearance::contrast(look.text, below), appearance::minContrast)
                            << element.symbol << " view " << code;
                    }
                }
            }
        }
    }
}

TEST(CellLook, KindsDifferForEveryKindOfColourVision) {
    struct Case {
        TableView view;
        int kinds;
        double apart, neighboursApart;
    };
    for (const auto& [view, kinds, apart, neighboursApart] :
         {Case{TableView::metals, 3, 18, 18}, Case{TableView::matter, 3, 18, 18},
          Case{TableView::blocks, 4, 18, 18}, Case{TableView::groups, 19, 10, 18}}) {
        for (const Vision& vision : visions) {
            for (int one = 1; one <= kinds; ++one) {
                for (int other = 1; other < one; ++other) {
                    // The elements without a group stand in rows of their own.
                    const bool neighbours = other == one - 1 && one != kindWithoutGroup;
                    EXPECT_GT(distance(vision.seen(kindColors(view, one).fill),
                                       vision.seen(kindColors(view, other).fill)),
                              neighbours ? neighboursApart : apart)
                        << vision.name << ' ' << viewCode(view) << ' ' << one << ' ' << other;
                }
            }
        }
    }
}

TEST(CellLook, MarksWhatIsNotHighlightedNotKnownOrNotYetFound) {
    TableState state;
    const int halogens = familyCode(Family::halogen);
    EXPECT_EQ(lookOf(*findElement(17), state, halogens), lookOf(*findElement(17), state, 0));
    EXPECT_EQ(lookOf(*findElement(18), state, halogens).fill, appearance::ground);
    state.view = TableView::electronegativity;
    EXPECT_EQ(lookOf(*findElement(2), state, 0).ground, CellLook::Ground::hatched);
    EXPECT_EQ(lookOf(*findElement(9), state, 0).ground, CellLook::Ground::plain);
    state.view = TableView::matter;
    EXPECT_EQ(lookOf(*findElement(118), state, 0).ground, CellLook::Ground::hatched);
    state.view = TableView::discovery;
    state.year = 1774;
    EXPECT_EQ(lookOf(*findElement(8), state, 0).ground, CellLook::Ground::plain);
    state.year = 1773;
    EXPECT_EQ(lookOf(*findElement(8), state, 0).ground, CellLook::Ground::empty);
    EXPECT_EQ(lookOf(*findElement(79), state, 0).ground, CellLook::Ground::plain);
}

TEST(CategoryLook, TellsTheGroupsOfOneGraphApart) {
    using namespace dataanalyser;
    Categories families;
    for (int code = 1; code <= familyCount; ++code)
        families.names.emplace_back(familyName(*familyOfCode(code)));
    for (const Categories& groups : {families, Categories{std::vector<std::string>(18, "group"), {}}}) {
        for (int one = 0; one < static_cast<int>(groups.names.size()); ++one) {
            for (int other = 0; other < one; ++other) {
                const CategoryLook looks[] = {categoryLook(groups, one), categoryLook(groups, other)};
                for (const Vision& vision : visions) {
                    const double apart =
                        distance(vision.seen(looks[0].colors.edge), vision.seen(looks[1].colors.edge));
                    EXPECT_GT(apart, looks[0].shape == looks[1].shape ? 30 : 0)
                        << vision.name << ' ' << one << ' ' << other;
                }
            }
        }
    }
}

}  // namespace
}  // namespace controls::periodic
