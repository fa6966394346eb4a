#include "platform/files/ReplaceFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/files/Profile.h"
#include "platform/machine/MachineConfig.h"
#include "platform/registry/RegFile.h"
#include "tests/support/TestFolder.h"

namespace platform {
namespace {

/// Every writer of a file that is kept.
struct Writer {
    const char* name;
    std::function<bool(const TestFolder&)> write;  ///< to the file "kept"
};

const Writer writers[] = {
    {"replaceFile", [](const TestFolder& folder) { return replaceFile(folder / "kept", "ten bytes."); }},
    {"copyFile",
     [](const TestFolder& folder) { return folder.asDrive().copyFile("C:\\source", "C:\\kept"); }},
    {"profile",
     [](const TestFolder& folder) {
         return writeProfileString(folder.asDrive(), "C:\\kept", "Settings", "DataPath", "D:\\");
     }},
    {"registry",
     [](const TestFolder& folder) {
         Registry registry;
         registry.createKey(HKEY_LOCAL_MACHINE, "Software")->setDword("Left", 1);
         return saveRegFile(registry, folder / "kept");
     }},
    {"machine", [](const TestFolder& folder) { return saveMachineConfig({}, folder / "kept"); }},
};

TEST(ReplaceFile, AFailureAfterAnyByteKeepsTheOldFile) {
    const std::string old = "; what was there before\r\n";
    for (const auto& writer : writers) {
        const TestFolder folder;
        folder.write("source", "to be copied");
        folder.write("kept", old);
        ASSERT_TRUE(writer.write(folder)) << writer.name;
        const std::string whole = folder.read("kept");
        ASSERT_NE(whole, old) << writer.name;
        for (std::size_t bytes = 0; bytes < whole.size(); ++bytes) {
            folder.write("kept", old);
            const FullDisk full(bytes);
            EXPECT_FALSE(writer.write(folder)) << writer.name << " after " << bytes;
            EXPECT_EQ(folder.read("kept"), old) << writer.name << " after " << bytes;
        }
        EXPECT_EQ(folder.count(), 2U) << writer.name << " leaves a temporary file";
    }
}

TEST(ReplaceFile, MissingFoldersAndFoldersInTheWayFail) {
    const TestFolder folder;
    std::filesystem::create_directory(folder / "folder");
    EXPECT_FALSE(replaceFile(folder / "none/file", "x"));
    EXPECT_FALSE(replaceFile(folder / "folder", "x"));
    EXPECT_FALSE(replaceFile(folder.asDrive(), "D:\\file", "x"));
    EXPECT_TRUE(replaceFile(folder.asDrive(), "C:\\file", ""));
    EXPECT_EQ(folder.read("file"), "");
    EXPECT_EQ(folder.count(), 2U);
}

}  // namespace
}  // namespace platform
