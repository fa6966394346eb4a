#include "controls/dataanalyser/model/DataLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/text/CodePage1253.h"
#include "tests/support/TestFolder.h"

namespace controls::dataanalyser {
namespace {

TEST(DataLibrary, LeavesOutWhatCannotBeReadAndSaysWhy) {
    const TestFolder folder;
    const std::string head =
        "number: 7\ntitle: T\nsource: S\ncolumn: text | A\ncolumn: number | B\ngraph: 2 2\n---\n";
    folder.write("datasets/a.dat", head + "x\t1\nof three\t1\t2\n");
    folder.write("datasets/b.dat", head + "x\t1\n");
    folder.write("datasets/c.dat", "number: 8\ntitle: T\n---\n");
    std::string rows = head;
    rows.replace(rows.find('7'), 1, "9");
    for (std::size_t row = 0; row < formats::DataSet::maxRows; ++row) rows += "x\t1\n";
    folder.write("datasets/d.dat", rows + "one more\t1\n");
    folder.write("datasets/e.dat", "");
    std::filesystem::resize_file(folder / "datasets/e.dat", 33U << 20U);
    folder.write("datasets/notes.txt", "no data set");

    const DataLibrary library(folder.asDrive(), "C:\\");
    ASSERT_EQ(library.sets().size(), 3U);
    EXPECT_EQ(library.find(7).rowIds.size(), 1U);
    EXPECT_EQ(library.find(9).rowIds.size(), formats::DataSet::maxRows);
    std::string remarks;
    for (const std::string& remark : library.remarks()) remarks += platform::toUtf8(remark) + '\n';
    EXPECT_EQ(remarks,
              "a.dat, γραμμή 9 («of three»): δεν έχει τόσα κελιά όσες είναι οι στήλες\n"
              "b.dat: ο αριθμός του ανήκει σε άλλο αρχείο\n"
              "c.dat, γραμμή 3: η επικεφαλίδα είναι λανθασμένη\n"
              "d.dat, γραμμή 32775 («one more»): οι γραμμές είναι πάρα πολλές\n"
              "e.dat: το αρχείο δεν διαβάζεται\n");
}

}  // namespace
}  // namespace controls::dataanalyser
