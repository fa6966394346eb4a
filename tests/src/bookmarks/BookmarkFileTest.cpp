#include "src/bookmarks/BookmarkFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "platform/text/GreekLiteral.h"
#include "src/bookmarks/BookmarkMerge.h"
#include "tests/support/HexBytes.h"
#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

using namespace platform::literals;

const std::string folderClass = "FF FF 01 00 09 00 'CBMFolder' ";
const std::string pageClass = "FF FF 01 00 09 00 'CBMBrowse' ";
const std::string tableClass = "FF FF 01 00 0B 00 'CBMPeriodic' ";
const std::string analyserClass = "FF FF 01 00 09 00 'CBMDataAn' ";
const std::string defaultFile = hexBytes("01 00 00 00  01 00 00 00  01 00 " + folderClass +
                                         "14 CF E9 20 F3 E5 EB E9 E4 EF E4 E5 DF EA F4 E5 F2 20 EC EF F5");

template <class Record>
Record& add(BookmarkArray& records, std::string_view name) {
    auto record = std::make_unique<Record>();
    record->name = name;
    Record& added = *record;
    records.push_back(std::move(record));
    return added;
}

BookmarkArray recordsOfAllClasses() {
    BookmarkArray records;
    add<CBMFolder>(records, "Α"_gr);
    auto& page = add<CBMBrowse>(records, "p");
    page.pageId = 290123;
    page.itemCode = -2;
    page.sectionCode = 3;
    auto& table = add<CBMPeriodic>(records, "t");
    table.stateA = 0x01020304;
    table.stateB = 5;
    auto& analyser = add<CBMDataAn>(records, "d");
    analyser.mode = 1;
    analyser.viewMode = 2;
    analyser.option3 = 3;
    analyser.flag5 = 1;
    analyser.flag6 = 0;
    analyser.option4 = 4;
    analyser.option7 = 7;
    analyser.value8 = 2;
    analyser.value9 = -1;
    analyser.value11 = {std::byte{0xAB}, std::byte{0xCD}};
    analyser.entryBlock = {3, 10, 20};
    analyser.entries = {100, -100};
    add<CBMFolder>(records, "");
    add<CBMBrowse>(records, "q");
    return records;
}

const std::string fileOfAllClasses =
    hexBytes("01 00 00 00  06 00 00 00  06 00 " +                                        //
             folderClass + "01 C1 " +                                                    // class 1, record 2
             pageClass + "4B 6D 04 00  FE FF FF FF  03 00  01 'p' " +                    // 3, 4
             tableClass + "04 03 02 01  05 00 00 00  01 't' " +                          // 5, 6
             analyserClass + "01 'd'  01 00  02 00  01 00 00 00  03 00  00 00 00 00 " +  // 7, 8
             "04 00 00 00  07 00  02 00 00 00  FF FF  AB CD " +                          //
             "03 00 00 00  0A 00 00 00  14 00 00 00  64 00 00 00  9C FF FF FF " +        //
             "01 80  00 " +                                                              // 9
             "03 80  00 00 00 00  00 00 00 00  00 00  01 'q'");                          // 10

TEST(BookmarkFile, EachRecordClassHasItsBytes) {
    EXPECT_EQ(WriteBookmarks(recordsOfAllClasses()), fileOfAllClasses);
    const auto read = ReadBookmarks(fileOfAllClasses);
    ASSERT_TRUE(read);
    EXPECT_EQ(WriteBookmarks(*read), fileOfAllClasses);
    const auto* analyser = dynamic_cast<const CBMDataAn*>(read->at(3).get());
    ASSERT_TRUE(analyser);
    EXPECT_EQ(analyser->flag5, 1);
    EXPECT_EQ(analyser->entries, (std::vector<std::int32_t>{100, -100}));
    EXPECT_EQ(analyser->value9, -1);
}

TEST(BookmarkFile, LongNamesHaveTheirLengthForms) {
    const std::vector<std::pair<std::size_t, std::string>> forms = {
        {254, "FE"}, {255, "FF FF 00"}, {0xFFFD, "FF FD FF"}, {0xFFFE, "FF FF FF FE FF 00 00"}};
    const std::string begin = hexBytes("01 00 00 00  01 00 00 00  01 00 " + folderClass);
    for (const auto& [length, prefix] : forms) {
        BookmarkArray records;
        add<CBMFolder>(records, std::string(length, '\xE1'));
        const std::string file = WriteBookmarks(records);
        EXPECT_EQ(file.substr(0, 25 + hexBytes(prefix).size()), begin + hexBytes(prefix));
        const auto read = ReadBookmarks(file);
        ASSERT_TRUE(read) << length;
        EXPECT_EQ(read->front()->name, records.front()->name);
    }
}

TEST(BookmarkFile, ManyRecordsHaveTheLargeForms) {
    BookmarkArray records;
    add<CBMFolder>(records, "");
    for (int i = 0; i < 0x7FFF - 4; ++i) add<CBMBrowse>(records, "");
    add<CBMPeriodic>(records, "");  // gets the class index 0x7FFF
    add<CBMPeriodic>(records, "");
    const std::string file = WriteBookmarks(records);
    const std::string tail = hexBytes("FF 7F FF 7F 00 80  00 00 00 00  00 00 00 00  00");
    EXPECT_EQ(file.substr(file.size() - tail.size()), tail);
    while (records.size() < 0xFFFF) add<CBMPeriodic>(records, "");
    const std::string large = WriteBookmarks(records);
    EXPECT_EQ(large.substr(0, 14), hexBytes("01 00 00 00  FF FF 00 00  FF FF FF FF 00 00"));
    const auto read = ReadBookmarks(large);
    ASSERT_TRUE(read);
    EXPECT_EQ(WriteBookmarks(*read), large);
}

TEST(BookmarkFile, RefusesDamagedFiles) {
    const std::string head = "01 00 00 00  02 00 00 00  02 00 " + folderClass + "01 'f' ";
    const std::string analyser =
        analyserClass + "00  00 00 00 00  00 00 00 00  00 00  00 00 00 00  00 00 00 00  00 00 ";
    const std::pair<const char*, std::string> cases[] = {
        {"empty", ""},
        {"version 2", "02 00 00 00  01 00 00 00  01 00 " + folderClass + "00"},
        {"count 0", "01 00 00 00  00 00 00 00  01 00 " + folderClass + "00"},
        {"both counts 0", "01 00 00 00  00 00 00 00  00 00"},
        {"count -1", "01 00 00 00  FF FF FF FF  FF FF FF FF FF FF " + folderClass + "00"},
        {"counts differ", "01 00 00 00  02 00 00 00  01 00 " + folderClass + "00"},
        {"more records than bytes", "01 00 00 00  FF FF FF 7F  FF FF FF FF FF 7F " + folderClass + "00"},
        {"name of 4 GB", "01 00 00 00  01 00 00 00  01 00 " + folderClass + "FF FF FF FF FF FF FF 'x'"},
        {"Unicode name", "01 00 00 00  01 00 00 00  01 00 " + folderClass + "FF FE FF 01 'x' 00"},
        {"no folder first", "01 00 00 00  01 00 00 00  01 00 " + tableClass + "00 00 00 00 00 00 00 00 00"},
        {"schema 2", "01 00 00 00  01 00 00 00  01 00 FF FF 02 00 09 00 'CBMFolder' 00"},
        {"unknown class", head + "FF FF 01 00 06 00 'CBMFoo' 00"},
        {"class name of 64 KB", head + "FF FF 01 00 FF FF 'CBMFolder' 00"},
        {"null element", head + "00 00"},
        {"reference to a record", head + "02 00"},
        {"reference to a record, large form", head + "FF 7F 02 00 00 00"},
        {"class index of a record", head + "02 80 00"},
        {"class index of nothing", head + "FF 7F 09 00 00 80 00"},
        {"K = 2,000,000,000", head + analyser + "00 00 00 00  00 00  00 94 35 77  00 00 00 00"},
        {"K = 0", head + analyser + "00 00 00 00  00 00  00 00 00 00"},
        {"K = -1", head + analyser + "00 00 00 00  00 00  FF FF FF FF"},
        {"fewer entries than K - 1", head + analyser + "00 00 00 00  00 00  02 00 00 00  01 00 00 00  00"},
        {"N = 2 GB", head + analyser + "FF FF FF 7F  00 00  01 00 00 00"},
    };
    for (const auto& [what, text] : cases) EXPECT_FALSE(ReadBookmarks(hexBytes(text))) << what;
    EXPECT_TRUE(ReadBookmarks(hexBytes(head + analyser + "00 00 00 00  00 00  01 00 00 00")))
        << "the rest is whole";
    EXPECT_TRUE(ReadBookmarks(hexBytes(head + analyser + "FB FF FF FF  00 00  01 00 00 00"))) << "N below 0";
    EXPECT_TRUE(ReadBookmarks(hexBytes(head + "FF 7F 01 00 00 80  01 'g'")))
        << "a small index in the large form";
}

TEST(BookmarkFile, RefusesEachBeginningOfAFile) {
    for (std::size_t length = 0; length < fileOfAllClasses.size(); ++length) {
        EXPECT_FALSE(ReadBookmarks(fileOfAllClasses.substr(0, length))) << length;
    }
    EXPECT_TRUE(ReadBookmarks(fileOfAllClasses + "more"));
}

class BookmarksOnDisk : public testing::Test {
  protected:
    /// A run of the program: its file and its list.
    struct Run {
        explicit Run(const TestDrives& drives) : file(drives.files, "C:\\b.dat", drives.host("C:\\")) {}
        BookmarkLoad load() { return file.Load(list); }
        BookmarkSave save() { return file.Save(list.Records()); }
        void add(const std::string& name) {
            auto record = std::make_unique<CBMBrowse>();
            record->name = name;
            list.Add(std::move(record));
        }
        BookmarkFile file;
        BookmarkList list;
    };
    std::string names() {
        Run run(drives_);
        EXPECT_EQ(run.load(), BookmarkLoad::loaded);
        std::string names;
        for (const auto& record : run.list.Records()) names += record->name + " ";
        return names;
    }

    TestDrives drives_;
};

TEST_F(BookmarksOnDisk, TooLargeFileIsDamaged) {
    drives_.put("C:\\b.dat", defaultFile);
    std::filesystem::resize_file(drives_.host("C:\\b.dat"), kMaxBookmarkBytes + 1);
    EXPECT_EQ(Run(drives_).load(), BookmarkLoad::damaged);
    const std::string folder = hexBytes("01 80 00");
    std::string folders = hexBytes("01 00 00 00  01 00 02 00  FF FF 01 00 02 00 " + folderClass + "00");
    for (std::size_t i = 0; i < kMaxBookmarks; ++i) folders += folder;
    EXPECT_FALSE(ReadBookmarks(folders));
    folders[4] = folders[10] = 0;
    EXPECT_TRUE(ReadBookmarks(folders));
}

TEST_F(BookmarksOnDisk, TwoProgramsKeepEachOthersBookmarks) {
    drives_.put("C:\\b.dat", fileOfAllClasses);
    Run first(drives_);
    Run second(drives_);
    Run third(drives_);
    for (Run* const run : {&first, &second, &third}) run->load();
    first.add("first");
    second.add("second");
    for (Run* const run : {&first, &second, &third}) EXPECT_EQ(run->save(), BookmarkSave::saved);
    EXPECT_EQ(names(), std::string("Α"_gr) + " p t d second first  q ");
}

TEST_F(BookmarksOnDisk, FileThatAppearsDuringTheRunIsKept) {
    Run run(drives_);
    EXPECT_EQ(run.load(), BookmarkLoad::noFile);
    run.add("new");
    drives_.put("C:\\b.dat", fileOfAllClasses);
    EXPECT_EQ(run.save(), BookmarkSave::saved);
    EXPECT_EQ(names(), std::string("Οι σελιδοδείκτες μου new Α p t d  q "_gr));
}

TEST_F(BookmarksOnDisk, OnlyWholeFilesBecomeTheCopy) {
    struct Case {
        const char* what;
        std::string file, bak;             ///< before the save; none when empty
        std::string copy, secondCopy;      ///< after it: .bak and .bak2
        std::string damaged, moreDamaged;  ///< .damaged and .damaged2
    };
    const std::string none = drives_.get("C:\\none");
    const std::string half = fileOfAllClasses.substr(0, 100);
    const Case cases[] = {
        {"whole", fileOfAllClasses, "", fileOfAllClasses, none, none, none},
        {"whole, over a former copy", fileOfAllClasses, defaultFile, fileOfAllClasses, none, none, none},
        {"whole, beside a foreign file", fileOfAllClasses, "mine", "mine", fileOfAllClasses, none, none},
        {"half", half, fileOfAllClasses, fileOfAllClasses, fileOfAllClasses, half, none},
        {"half once more", half, defaultFile, defaultFile, fileOfAllClasses, half, half},
    };
    const std::string ofKilledProgram = "C:\\b.dat.bak.4711-0.tmp";
    for (const Case& row : cases) {
        drives_.put("C:\\b.dat", row.file);
        drives_.put(ofKilledProgram, "x");
        if (!row.bak.empty()) drives_.put("C:\\b.dat.bak", row.bak);
        Run run(drives_);
        run.load();
        EXPECT_EQ(run.save(), BookmarkSave::saved) << row.what;
        EXPECT_EQ(drives_.get("C:\\b.dat.bak"), row.copy) << row.what;
        EXPECT_EQ(drives_.get("C:\\b.dat.bak2"), row.secondCopy) << row.what;
        EXPECT_EQ(drives_.get("C:\\b.dat.damaged"), row.damaged) << row.what;
        EXPECT_EQ(drives_.get("C:\\b.dat.damaged2"), row.moreDamaged) << row.what;
        EXPECT_FALSE(drives_.has(ofKilledProgram)) << row.what;
    }
    EXPECT_EQ(drives_.get("C:\\b.dat.damaged.bak"), fileOfAllClasses) << "later saves leave it";
    EXPECT_EQ(drives_.get("C:\\b.dat.damaged2.bak"), defaultFile);
}

TEST_F(BookmarksOnDisk, CopyThatCannotBeMadeDoesNotMatter) {
    drives_.put("C:\\b.dat", fileOfAllClasses);
    drives_.put("C:\\b.dat.bak\\in the way", "");
    Run run(drives_);
    EXPECT_EQ(run.load(), BookmarkLoad::loaded);
    const FullDisk full(fileOfAllClasses.size());
    EXPECT_EQ(run.save(), BookmarkSave::saved);
    EXPECT_EQ(drives_.get("C:\\b.dat"), fileOfAllClasses);
}

TEST_F(BookmarksOnDisk, AreKeptByAFullDiskThatHasNoRoomForACopyEither) {
    drives_.put("C:\\b.dat", fileOfAllClasses);
    Run run(drives_);
    run.load();
    run.add("new");
    const std::size_t size = WriteBookmarks(run.list.Records()).size();
    for (std::size_t bytes = 0; bytes < size; ++bytes) {
        const FullDisk full(bytes);
        EXPECT_EQ(run.save(), BookmarkSave::notWritten) << bytes;
        EXPECT_TRUE(drives_.get("C:\\b.dat").starts_with(fileOfAllClasses)) << bytes;
    }
}

/// Bookmarks of a text such as "F a b | G c=2": folders and what is in them, with a page id behind "=".
BookmarkArray bookmarks(std::string_view text) {
    BookmarkArray records;
    std::istringstream words{std::string(text)};
    bool folder = true;
    for (std::string word; words >> word; folder = word == "|") {
        if (word == "|") continue;
        if (folder) {
            add<CBMFolder>(records, word);
            continue;
        }
        const std::size_t equals = std::min(word.find('='), word.size());
        add<CBMBrowse>(records, word.substr(0, equals)).pageId =
            equals < word.size() ? std::stoi(word.substr(equals + 1)) : 1;
    }
    return records;
}

TEST(BookmarkMerge, KeepsWhatEitherAddedAndLeavesOutWhatEitherDeleted) {
    struct Case {
        const char* what;
        const char *before, *theirs, *ours, *merged;
    };
    const Case cases[] = {
        {"both add to one folder", "F a | G b", "F a x | G b", "F a y | G b", "F a y x | G b"},
        {"both add the same", "F a", "F a x", "F a x", "F a x"},
        {"both add one name with other content", "F a", "F a x=1", "F a x=2", "F a x=2 x=1"},
        {"both add a folder", "F", "F | X x", "F | Y y", "F | Y y | X x"},
        {"both add a folder of one name", "F", "F | X x", "F | X y", "F | X y x"},
        {"we deleted", "F a b", "F a b c", "F b", "F b c"},
        {"they deleted", "F a b", "F b", "F a b c", "F b c"},
        {"we deleted a folder", "F a | G b", "F a x | G b", "F a", "F a x"},
        {"we deleted a folder to which they added", "F a | G b", "F a | G b c", "F a", "F a | G c"},
        {"they deleted a folder", "F a | G b", "F a", "F a y | G b", "F a y"},
        {"they deleted a folder to which we added", "F a | G b", "F a", "F a | G b c", "F a | G c"},
        {"they renamed, we added", "F a", "F b", "F a c", "F c b"},
        {"they moved, we added", "F a | G", "F | G a", "F a c | G", "F c | G a"},
        {"we changed nothing", "F a b | G c", "G c | F b a", "F a b | G c", "G c | F b a"},
        {"folders of two names in one", "F a | F a", "F a | F a", "F a b | F a", "F a b | F a"},
    };
    for (const auto& [what, before, theirs, ours, merged] : cases) {
        EXPECT_EQ(WriteBookmarks(MergeBookmarks(bookmarks(before), bookmarks(theirs), bookmarks(ours))),
                  WriteBookmarks(bookmarks(merged)))
            << what;
    }
}

TEST(BookmarkRecords, RenamedRecordIsTheSameButForItsName) {
    const BookmarkArray originals = recordsOfAllClasses();
    for (std::size_t i = 0; i < originals.size(); ++i) {
        EXPECT_EQ(originals[i]->Renamed("other")->name, "other");
        BookmarkArray expected;
        BookmarkArray renamed;
        add<CBMFolder>(expected, "");
        add<CBMFolder>(renamed, "");
        expected.push_back(std::move(recordsOfAllClasses()[i]));
        renamed.push_back(originals[i]->Renamed(originals[i]->name));
        EXPECT_EQ(WriteBookmarks(renamed), WriteBookmarks(expected)) << i;
    }
}

}  // namespace
}  // namespace kalyxo
