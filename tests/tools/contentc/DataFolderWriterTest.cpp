#include "tools/contentc/DataFolderWriter.h"

#include <gtest/gtest.h>

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
        m_files.add(path, bytes, {"source"}, m_diagnostics);
    }
    std::string write() const { return contentc::writeDataFolder(m_files, folder()).message(); }
    fs::path folder() const { return m_content.beside("out/data"); }
    /// What stands where the data folder goes.
    Files names() const {
        Files names;
        for (const auto& entry : fs::directory_iterator(m_content.beside("out")))
            names.push_back(entry.path().filename());
        return names;
    }

    ContentFolder m_content;
    contentc::OutputFiles m_files;
    contentc::Diagnostics m_diagnostics;
};

const Files kWritten{"01/4/123: page", "a.htm: start"};

TEST_F(DataFolderWriter, ReplacesAnEmptyFolderAndAFormerDataFolder) {
    fs::create_directories(folder() / "");
    EXPECT_EQ(write(), "");
    add("new.dat", "new");
    fs::create_directory(folder() / "40");
    EXPECT_EQ(contentc::writeDataFolder(m_files, folder() / "").message(), "");
    EXPECT_EQ(listAll(folder()), (Files{"01/4/123: page", "a.htm: start", "new.dat: new"}));
    EXPECT_FALSE(fs::exists(folder() / "40"));
    EXPECT_EQ(names(), Files{"data"});
}

TEST_F(DataFolderWriter, LeavesAFolderOfOtherThingsAlone) {
    m_content.write("../out/data/letter.txt", "mine");
    EXPECT_NE(write().find("is in use by something other than a data folder"), std::string::npos);
    EXPECT_EQ(listAll(folder()), Files{"letter.txt: mine"});
    m_content.write("../out/file", "mine");
    EXPECT_NE(contentc::writeDataFolder(m_files, m_content.beside("out/file")).message(), "");
    EXPECT_EQ(readAll(m_content.beside("out/file")), "mine");
}

// A file where a folder has to be: writing fails half-way.
TEST_F(DataFolderWriter, FailureKeepsTheFormerFolderAndLeavesNothingElse) {
    EXPECT_EQ(write(), "");
    add("b", "file");
    add("b\\c", "below a file");
    EXPECT_NE(write(), "");
    EXPECT_EQ(listAll(folder()), kWritten);
    EXPECT_EQ(names(), Files{"data"});

    fs::remove_all(folder());
    EXPECT_NE(write(), "");
    EXPECT_EQ(names(), Files{});
}

}  // namespace
