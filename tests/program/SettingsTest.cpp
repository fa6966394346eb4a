#include <gtest/gtest.h>

#include "src/app/DataPaths.h"
#include "src/app/IniValue.h"
#include "src/app/KalyxoApp.h"
#include "src/app/MainFrame.h"
#include "src/app/Settings.h"
#include "src/resources/ResourceTable.h"
#include "tests/program/TestFolders.h"

namespace kalyxo {
namespace {

using platform::CRect;
using platform::HKEY_LOCAL_MACHINE;
using platform::Registry;

TEST(IniValue, FindsTheFirstMentionOfTheKey) {
    const struct {
        std::string text;
        std::string value;
    } cases[] = {
        {"[Settings]\r\nDataPath=D:\\data\r\n", "D:\\data"},
        {"DataPath=D:", "D:"},
        {"OldDataPath=E:\r\nDataPath=D:", "E:"},
        {"DataPath\r\nother=x\r\n", "x"},
        {"DataPath", ""},
        {"nothing", ""},
        {"DataPath=" + std::string(254, 'a'), std::string(254, 'a')},
        {"DataPath=" + std::string(255, 'a'), ""},
    };
    for (const auto& c : cases) {
        std::string value = "old";
        EXPECT_EQ(GetIniValue(c.text, "DataPath", value), c.value.size()) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
}

class DataPathsTest : public testing::Test {
  protected:
    std::optional<DataPaths> find() {
        return FindDataPaths(drives.files, {"C:\\Kalyxo", "C:\\Temp\\"}, [this](FolderPurpose purpose) {
            asked.push_back(purpose);
            auto& answers = purpose == FolderPurpose::locateContent ? contentFolders : bookmarkFolders;
            if (answers.empty()) return std::optional<std::string>();
            std::optional<std::string> answer = answers.front();
            answers.erase(answers.begin());
            return answer;
        });
    }
    void SetUp() override {
        drives.put("D:\\a.htm", "start");
        drives.put("C:\\Kalyxo\\kalyxo.exe", "");
    }

    TestDrives drives;
    std::vector<std::string> contentFolders;
    std::vector<std::string> bookmarkFolders;
    std::vector<FolderPurpose> asked;
};

TEST_F(DataPathsTest, TakesWhatTheFileTells) {
    drives.put("C:\\Kalyxo\\cset.ini", "[Settings]\r\nDataPath=D:\r\nBookmark=C:\\b.dat");
    const auto paths = find();
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths->dataFolder, "D:\\");
    EXPECT_EQ(paths->bookmarkFile, "C:\\b.dat");
    EXPECT_TRUE(asked.empty());
}

TEST_F(DataPathsTest, AsksUntilAFolderHoldsTheContentAndRemembersIt) {
    contentFolders = {"C:\\Kalyxo", "D:"};
    bookmarkFolders = {"C:\\mine"};
    const auto paths = find();
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths->dataFolder, "D:\\");
    EXPECT_EQ(paths->bookmarkFile, "C:\\mine\\bookmark.dat");
    EXPECT_EQ(drives.get("C:\\Kalyxo\\cset.ini"),
              "[Settings]\r\nDataPath=D:\r\nBookmark=C:\\mine\\bookmark.dat\r\n");
}

TEST_F(DataPathsTest, GivingUpOnTheContentEndsTheSearch) {
    EXPECT_FALSE(find());
    EXPECT_EQ(asked, std::vector{FolderPurpose::locateContent});
}

TEST_F(DataPathsTest, NoBookmarkFolderMeansTheTemporaryFolderFromThenOn) {
    drives.put("C:\\Kalyxo\\cset.ini", "[Settings]\r\nDataPath=D:\\\r\n");
    EXPECT_EQ(find()->bookmarkFile, "C:\\Temp\\klyxbookmark.dat");
    asked.clear();
    EXPECT_EQ(find()->bookmarkFile, "C:\\Temp\\klyxbookmark.dat");
    EXPECT_TRUE(asked.empty());
}

TEST_F(DataPathsTest, ReadsNoFurtherThanAThousandBytes) {
    drives.put("C:\\Kalyxo\\cset.ini", std::string(1000, ' ') + "DataPath=D:\\\r\n");
    EXPECT_FALSE(find());
}

class LayoutTest : public testing::Test {
  protected:
    void SetUp() override {
        platform::SetResources(ProgramResources());
        registry.createKey(HKEY_LOCAL_MACHINE, SettingsKeyPath());
    }
    platform::RegistryKey key() { return *registry.openKeyForWriting(HKEY_LOCAL_MACHINE, SettingsKeyPath()); }
    Registry registry;
};

TEST_F(LayoutTest, DefaultsDependOnTheScreen) {
    EXPECT_EQ(ReadLayout(key(), {1024, 768}), (WindowLayout{216, 0, {192, 144, 832, 624}}));
    EXPECT_EQ(ReadLayout(key(), {640, 480}), (WindowLayout{216, 2, {0, 0, 640, 480}}));
    EXPECT_EQ(ReadLayout(key(), {700, 400}), (WindowLayout{216, 0, {30, -40, 670, 440}}));
}

TEST_F(LayoutTest, EachValueOfAnotherTypeFallsBackOnItsOwn) {
    const WindowLayout saved{300, 0, {10, 20, 810, 620}};
    const struct {
        const char* value;
        WindowLayout expected;
    } cases[] = {
        {"", saved},
        {"Splitter", {216, 0, saved.frame}},
        {"Left", {300, 0, {0, 20, 810, 620}}},
        {"Top", {300, 0, {10, 0, 810, 620}}},
        {"Right", {300, 0, {10, 20, 640, 620}}},
        {"Bottom", {300, 0, {10, 20, 810, 480}}},
        {"Size", {300, 0, {192, 144, 832, 624}}},
    };
    for (const auto& c : cases) {
        WriteLayout(registry, saved);
        if (*c.value != '\0') key().setString(c.value, "text");
        EXPECT_EQ(ReadLayout(key(), {1024, 768}), c.expected) << c.value;
    }
    key().setDword("Size", 1);
    EXPECT_EQ(ReadLayout(key(), {1024, 768}).frameState, 2);
}

TEST_F(LayoutTest, ARegistryThatCannotBeWrittenSavesNothing) {
    registry.setWritable(false);
    EXPECT_FALSE(WriteLayout(registry, {300, 2, {}}));
    EXPECT_FALSE(registry.openKey(HKEY_LOCAL_MACHINE, SettingsKeyPath())->queryDword("Size"));
}

TEST(ProgramLocationTest, ComparesTheInstalledFolderWithoutRegardToCase) {
    const struct {
        std::optional<std::string> directory;
        std::string folder;
        bool outside;
    } cases[] = {
        {"C:\\Prog\\KALYXO", "C:\\Prog\\KALYXO", false},
        {"C:\\Prog\\Kalyxo\\", "C:\\Prog\\Kalyxo", true},
        {"D:\\", "C:\\Prog\\Kalyxo", true},
        {std::nullopt, "C:\\Prog\\Kalyxo", true},
    };
    for (const auto& c : cases) {
        const ProgramLocation location = LocateProgram("C:\\Prog\\Kalyxo\\kalyxo.exe", c.directory);
        EXPECT_EQ(location.folder, c.folder);
        EXPECT_EQ(location.outsideInstallFolder, c.outside);
    }
}

TEST(FirstShow, SmallScreensMaximiseAndFewColoursWarn) {
    EXPECT_TRUE(IsSmallScreen({640, 480}) && IsSmallScreen({800, 480}) && IsSmallScreen({640, 1024}));
    EXPECT_FALSE(IsSmallScreen({641, 481}));
    EXPECT_NE(ColourDepthWarning(8).find("256"), std::string::npos);
    EXPECT_NE(ColourDepthWarning(4).find("16"), std::string::npos);
    EXPECT_EQ(ColourDepthWarning(16), "");
}

TEST(FirstShow, TheFrameKeepsALeastSize) {
    EXPECT_EQ(WithLeastFrameSize({10, 10, 110, 700}, {1032, 748}), (CRect{10, 10, 650, 700}));
    EXPECT_EQ(WithLeastFrameSize({0, 0, 100, 100}, {600, 400}), (CRect{0, 0, 592, 392}));
}

}  // namespace
}  // namespace kalyxo
