#include "platform/files/Profile.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/TestFolder.h"

namespace platform {
namespace {

TEST(Profile, AKeyIsSetInItsSection) {
    struct Case {
        const char* before;
        const char* after;
    };
    const Case cases[] = {
        {"", "[Settings]\r\nDataPath=D:\\\r\n"},
        // replaced where it stands, whatever its case and blanks
        {"[settings]\r\nA=1\r\n datapath = old\r\nB=2\r\n", "[settings]\r\nA=1\r\nDataPath=D:\\\r\nB=2\r\n"},
        {"[Settings]\r\nDataPath=old", "[Settings]\r\nDataPath=D:\\\r\n"},
        // added at the end of its section, before the blank lines that part it from the next
        {"[Settings]\r\nA=1\r\n\r\n[Next]\r\n", "[Settings]\r\nA=1\r\nDataPath=D:\\\r\n\r\n[Next]\r\n"},
        {"[ SETTINGS ]\r\n[Next]\r\nDataPath=x\r\n",
         "[ SETTINGS ]\r\nDataPath=D:\\\r\n[Next]\r\nDataPath=x\r\n"},
        {"[Settings]", "[Settings]\r\nDataPath=D:\\\r\n"},
        // another section's key, a comment and a longer key are not it
        {"[Other]\r\nDataPath=x\r\n;DataPath=y\r\nOldDataPath=z",
         "[Other]\r\nDataPath=x\r\n;DataPath=y\r\nOldDataPath=z\r\n[Settings]\r\nDataPath=D:\\\r\n"},
        {"[Settings]\r\n;DataPath=y\r\nOldDataPath=z\r\n",
         "[Settings]\r\n;DataPath=y\r\nOldDataPath=z\r\nDataPath=D:\\\r\n"},
        // lines that are neither, and LF alone, stay
        {"junk\n[Settings\n[Settings]\nno key\n", "junk\n[Settings\n[Settings]\nno key\nDataPath=D:\\\r\n"},
    };
    for (const auto& row : cases) {
        const TestFolder folder;
        folder.write("cset.ini", row.before);
        EXPECT_TRUE(writeProfileString(folder.asDrive(), "C:\\CSET.INI", "Settings", "DataPath", "D:\\"));
        EXPECT_EQ(folder.read("cset.ini"), row.after) << row.before;
    }
}

TEST(Profile, AMissingFileIsCreatedInAnExistingFolderOnly) {
    const TestFolder folder;
    const FileSystem files = folder.asDrive();
    EXPECT_TRUE(writeProfileString(files, "C:\\new.ini", "S", "K", ""));
    EXPECT_EQ(folder.read("new.ini"), "[S]\r\nK=\r\n");
    EXPECT_FALSE(writeProfileString(files, "C:\\none\\new.ini", "S", "K", "v"));
    EXPECT_FALSE(writeProfileString(files, "C:\\", "S", "K", "v"));
    folder.write("huge.ini", std::string(2 << 20, 'x'));
    EXPECT_FALSE(writeProfileString(files, "C:\\huge.ini", "S", "K", "v"));
}

}  // namespace
}  // namespace platform
