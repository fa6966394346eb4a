#include "formats/DataSetFile.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using formats::DataSetFault;
using Faults = std::vector<formats::DataSetFaultLine>;

const std::string head =
    "# words for the author\n"
    "number: 7\n"
    "title: Waters\n"
    "column: text | Name\n"
    "column: category | Kind\n"
    "column: number | Boiling point | \xB0"
    "C\n"
    "---\n";

TEST(DataSetFile, RowsHaveTextsAndFigures) {
    const auto decoded = formats::decodeDataSet(head + "water\tliquid\t100.0\r\n\r\n# no row\nice\t\t\r\n");
    ASSERT_TRUE(decoded.set);
    EXPECT_EQ(decoded.faults, Faults{});
    const formats::DataSet& set = *decoded.set;
    EXPECT_EQ(set.number, 7);
    EXPECT_EQ(set.title, "Waters");
    EXPECT_EQ(set.rowIds, (std::vector<std::int16_t>{1, 2}));
    ASSERT_EQ(set.columns.size(), 3U);
    EXPECT_EQ(set.columns[1].kind, formats::DataColumnKind::category);
    EXPECT_EQ(set.columns[2].unit,
              "\xB0"
              "C");
    EXPECT_EQ(set.columns[0].cells, (std::vector<std::string>{"water", "ice"}));
    EXPECT_EQ(set.columns[2].cells, (std::vector<std::string>{"100,0", ""}));
    EXPECT_EQ(set.columns[2].values[0], 100);
    EXPECT_TRUE(std::isnan(set.columns[2].values[1]));
}

TEST(DataSetFile, FaultyRowsAreLeftOutAndNamed) {
    const auto decoded = formats::decodeDataSet(head +
                                                "a\tx\t1\n"
                                                "b\tx\ttwo\n"
                                                "c\tx\n"
                                                "d\tx\t4\t5\n"
                                                "e\tx\t5\n"
                                                "f\tx\t1e999\n"
                                                "g\tx\t7");
    ASSERT_TRUE(decoded.set);
    EXPECT_EQ(decoded.faults, (Faults{{9, DataSetFault::notANumber, "b"},
                                      {10, DataSetFault::cellCount, "c"},
                                      {11, DataSetFault::cellCount, "d"},
                                      {13, DataSetFault::notANumber, "f"},
                                      {14, DataSetFault::cutShort, "g"}}));
    EXPECT_EQ(decoded.set->columns[0].cells, (std::vector<std::string>{"a", "e"}));
    EXPECT_EQ(decoded.set->rowIds, (std::vector<std::int16_t>{1, 5})) << "places stay when a row is mended";
}

TEST(DataSetFile, NoMoreRowsThanCanBeNamed) {
    std::string text = head;
    for (std::size_t i = 0; i <= formats::DataSet::maxRows; ++i) text += "a\tx\t1\n";
    const auto decoded = formats::decodeDataSet(text);
    ASSERT_TRUE(decoded.set);
    EXPECT_EQ(decoded.set->rowCount(), formats::DataSet::maxRows);
    ASSERT_EQ(decoded.faults.size(), 1U);
    EXPECT_EQ(decoded.faults[0].fault, DataSetFault::tooManyRows);
}

TEST(DataSetFile, WrongHeadMakesTheFileUseless) {
    const std::string columns = "column: text | N\ncolumn: number | V\n";
    const struct {
        std::string text;
        Faults faults;
    } cases[] = {
        {"", {{0, DataSetFault::incomplete, ""}}},
        {head.substr(0, head.size() - 4), {{6, DataSetFault::incomplete, ""}}},
        {"number: 1\ntitle: T\n" + columns, {{4, DataSetFault::incomplete, ""}}},
        {"title: T\n" + columns + "---\n", {{4, DataSetFault::incomplete, ""}}},
        {"number: 1\ntitle: T\ncolumn: text | N\n---\n", {{4, DataSetFault::incomplete, ""}}},
        {"number: 1\ntitle: T\ncolumn: number | N\n---\n", {{4, DataSetFault::incomplete, ""}}},
        {"number: 1\ntitle: T\n" + columns + "graph: 1 2\n---\n", {{6, DataSetFault::incomplete, ""}}},
        {"number: 1\ntitle: T\n" + columns + "graph: 2 3\n---\n", {{6, DataSetFault::incomplete, ""}}},
        {"number: 40000\ntitle:\ncolour: red\ncolumn: film | X\ncolumn: text | X | m\nwords\n" + columns +
             "---\n",
         {{1, DataSetFault::field, ""},
          {2, DataSetFault::field, ""},
          {3, DataSetFault::field, ""},
          {4, DataSetFault::field, ""},
          {5, DataSetFault::field, ""},
          {6, DataSetFault::field, ""},
          {9, DataSetFault::incomplete, ""}}},
    };
    for (const auto& [text, faults] : cases) {
        const auto decoded = formats::decodeDataSet(text);
        EXPECT_FALSE(decoded.set) << text;
        EXPECT_EQ(decoded.faults, faults) << text;
    }
}

TEST(DataSetFile, Figures) {
    EXPECT_EQ(formats::parseFigure("-182,5"), -182.5);
    EXPECT_EQ(formats::parseFigure("1.8e-5"), 1.8e-5);
    for (const char* text : {"", "-", "1,2,3", "1 000", "nan", "inf", "0x10", "5 ", "+1"}) {
        EXPECT_FALSE(formats::parseFigure(text)) << text;
    }
    EXPECT_FALSE(formats::parseFigure(std::string(1000, '1')));
}

}  // namespace
