#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "controls/dataanalyser/ColumnWidths.h"
#include "controls/dataanalyser/RowOrder.h"
#include "controls/dataanalyser/TableText.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {
namespace {

using namespace platform::literals;

std::string symbols(const std::vector<int>& numbers, std::size_t first, std::size_t count) {
    std::string text;
    for (std::size_t i = first; i < std::min(first + count, numbers.size()); ++i) {
        text += std::string(findElement(numbers[i])->symbol) + ' ';
    }
    return text;
}

TEST(RowOrder, SortsByEachKindOfColumn) {
    struct Case {
        Column column;
        bool descending;
        std::string first;
    };
    for (const auto& [column, descending, first] :
         std::vector<Case>{{Column::number, false, "H He Li "},
                           {Column::number, true, "Og Ts Lv "},
                           {Column::symbol, false, "Ac Ag Al "},
                           {Column::name, false, "N Es Ac "},
                           {Column::name, true, "Zn Cr Au "},
                           {Column::mass, true, "Ts Og Lv "},
                           {Column::group, false, "H Li Na "},
                           {Column::period, true, "Fr Ra Ac "},
                           {Column::melting, true, "C W Re "},
                           {Column::boiling, false, "He H Ne "},
                           {Column::density, true, "Os Ir Pt "},
                           {Column::electronegativity, true, "F O Cl "},
                           {Column::year, false, "C S Fe "}}) {
        const auto rows = orderedRows({column, descending, {}});
        EXPECT_EQ(rows.size(), 118U);
        EXPECT_EQ(symbols(rows, 0, 3), first) << static_cast<int>(column) << descending;
    }
}

TEST(RowOrder, WhatIsNotKnownStandsLastInEitherDirection) {
    for (const Column column :
         {Column::group, Column::melting, Column::boiling, Column::density, Column::electronegativity}) {
        for (const bool descending : {false, true}) {
            const auto rows = orderedRows({column, descending, {}});
            const auto unknown = [&](int number) { return !sortNumber(*findElement(number), column); };
            const auto first = std::ranges::find_if(rows, unknown);
            EXPECT_NE(first, rows.end());
            EXPECT_TRUE(std::all_of(first, rows.end(), unknown)) << static_cast<int>(column) << descending;
            EXPECT_TRUE(std::is_sorted(first, rows.end())) << "alike rows stand by atomic number";
        }
    }
}

TEST(RowOrder, ListsOneFamily) {
    const auto rows = orderedRows({Column::mass, true, Family::halogen});
    EXPECT_EQ(symbols(rows, 0, 10), "Ts At I Br Cl F ");
}

TEST(Cells, HaveDecimalCommasAndDashes) {
    struct Case {
        int number;
        Column column;
        TemperatureUnit unit;
        std::string_view text;
    };
    using enum TemperatureUnit;
    for (const auto& [number, column, unit, text] :
         std::vector<Case>{{1, Column::melting, kelvin, "14,01"},
                           {1, Column::melting, celsius, "-259,14"},
                           {26, Column::melting, celsius, "1538"},
                           {79, Column::melting, celsius, "1064,18"},
                           {118, Column::melting, celsius, "–"_gr},
                           {2, Column::electronegativity, kelvin, "–"_gr},
                           {57, Column::group, kelvin, "–"_gr},
                           {10, Column::mass, kelvin, "20,180"},
                           {43, Column::mass, kelvin, "[97]"},
                           {26, Column::name, kelvin, "Σίδηρος"_gr},
                           {26, Column::year, kelvin, "αρχαιότητα"_gr},
                           {117, Column::year, kelvin, "2010"}}) {
        EXPECT_EQ(cellText(*findElement(number), column, unit), text) << number;
    }
}

TEST(TableText, HasHeadingsUnitsAndARowEach) {
    const std::vector<int> rows{26, 1};
    EXPECT_EQ(
        tabbedText(rows, TemperatureUnit::kelvin),
        std::string("Ατομικός αριθμός\tΣύμβολο\tΌνομα\tΣχετική ατομική μάζα\tΟμάδα\tΠερίοδος\tΣημείο τήξης "
                    "(K)\tΣημείο βρασμού (K)\tΠυκνότητα (g/cm³)\tΗλεκτραρνητικότητα\tΈτος ανακάλυψης\n"
                    "26\tFe\tΣίδηρος\t55,845\t8\t4\t1811\t3134\t7,874\t1,83\tαρχαιότητα\n"
                    "1\tH\tΥδρογόνο\t1,008\t1\t1\t14,01\t20,28\t0,00008988\t2,20\t1766\n"_gr));
    const std::string html = htmlTable(rows, TemperatureUnit::celsius);
    EXPECT_NE(html.find("<th>Σημείο τήξης (°C)</th>"_gr), std::string::npos);
    EXPECT_NE(html.find("<td>Fe</td><td>Σίδηρος</td><td align=\"right\">55,845</td>"_gr), std::string::npos);
    EXPECT_LT(html.find("Fe"), html.find("Υδρογόνο"_gr));
}

TEST(ColumnWidths, FillTheSpaceAndKeepWhatTheReaderHasSet) {
    const auto sum = [](const ColumnWidths::Widths& widths) {
        int all = 0;
        for (const int width : widths) all += width;
        return all;
    };
    ColumnWidths widths;
    EXPECT_EQ(sum(widths.spread(1000)), 1000);
    EXPECT_EQ(sum(widths.spread(100)), sum(widths.spread(624))) << "never narrower than the texts need";
    widths.set(Column::name, 300);
    EXPECT_EQ(widths.spread(1000)[static_cast<std::size_t>(Column::name)], 300);
    EXPECT_EQ(sum(widths.spread(1000)), 1000);
    for (const int nonsense : {-5, 3, 5000}) {
        widths.set(Column::name, nonsense);
        EXPECT_EQ(widths.set(Column::name), ColumnWidths::automatic) << nonsense;
    }
}

}  // namespace
}  // namespace controls::dataanalyser
