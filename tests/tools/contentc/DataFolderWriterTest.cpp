#include "tools/contentc/DataFolderWriter.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/tools/contentc/ContentFolder.h"

namespace {

namespace fs = std::filesystem;
using Files = std::vector<std::string>;

class DataFolderWriter : public testing::Test {
  protected:
    void SetUp() override {
        add("a.htm", "start");
        add("01\\4\\123", "page");
    }
    void add(const std::string& path, const std::string& bytes) {
        files_.add(path, bytes, {"source"}, diagnostics_);
    }
    /// What there is to say; empty when it was written.
    std::string write() const { return writeTo(folder()); }
    std::string writeTo(const fs::path& folder) const {
        contentc::Diagnostics found;
        if (contentc::writeDataFolder(files_, folder, found)) return {};
        return contentc::toLine(found.sorted().at(0));
    }
    fs::path folder() const { return content_.beside("out/data"); }
    /// What stands where the data folder goes.
    Files names() const {
        Files names;
        for (const auto& entry : fs::directory_iterator(content_.beside("out")))
            names.push_back(entry.path().filename());
        return names;
    }

    ContentFolder content_;
    contentc::OutputFiles files_;
    contentc::Diagnostics diagnostics_;
};

const Files writtenFiles{"01/4/123: page", "a.htm: start"};

TEST_F(DataFolderWriter, ReplacesAnEmptyFolderAndAFormerDataFolder) {
    fs::create_directories(folder() / "");
    EXPECT_EQ(write(), "");
    add("new.dat", "new");
    fs::create_directory(folder() / "40");
    EXPECT_EQ(writeTo(folder() / ""), "");
    EXPECT_EQ(listAll(folder()), (Files{"01/4/123: page", "a.htm: start", "new.dat: new"}));
    EXPECT_FALSE(fs::exists(folder() / "40"));
    EXPECT_EQ(names(), Files{"data"});
}

// The program looks at the time of the start page to see that there is something new.
TEST_F(DataFolderWriter, TakesOverWhatHasNotChangedButTheStartPage) {
    EXPECT_EQ(write(), "");
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const char* file : {"a.htm", "01/4/123"}) fs::last_write_time(folder() / file, old);
    add("new.dat", "new");
    EXPECT_EQ(write(), "");
    EXPECT_EQ(fs::last_write_time(folder() / "01/4/123"), old);
    EXPECT_GT(fs::last_write_time(folder() / "a.htm"), old);

    content_.write("../out/data/01/4/123", "PAGE");
    EXPECT_EQ(write(), "");
    EXPECT_EQ(readAll(folder() / "01/4/123"), "page");
    EXPECT_EQ(fs::hard_link_count(folder() / "01/4/123"), 1U);
}

TEST_F(DataFolderWriter, LeavesAFolderOfOtherThingsAlone) {
    content_.write("../out/data/letter.txt", "mine");
    EXPECT_NE(write().find("is in use by something other than a data folder"), std::string::npos);
    EXPECT_EQ(listAll(folder()), Files{"letter.txt: mine"});
    content_.write("../out/file", "mine");
    EXPECT_NE(writeTo(content_.beside("out/file")), "");
    EXPECT_EQ(readAll(content_.beside("out/file")), "mine");
}

TEST_F(DataFolderWriter, FailureKeepsTheFormerFolderAndLeavesNothingElse) {
    EXPECT_EQ(write(), "");
    {
        const FullDisk full(3);
        EXPECT_NE(write().find("/out/data/a.htm:1: cannot be written"), std::string::npos);
    }
    EXPECT_EQ(listAll(folder()), writtenFiles);

    // A file where a folder has to be: writing fails half-way.
    add("b", "file");
    add("b\\c", "below a file");
    EXPECT_NE(write(), "");
    EXPECT_EQ(listAll(folder()), writtenFiles);
    EXPECT_EQ(names(), Files{"data"});

    fs::remove_all(folder());
    EXPECT_NE(write(), "");
    EXPECT_EQ(names(), Files{});
}

}  // namespace
