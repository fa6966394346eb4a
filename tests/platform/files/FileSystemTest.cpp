#include "platform/files/FileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <string>
#include <thread>

#include "platform/text/GreekLiteral.h"
#include "tests/support/TestFolder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

class FileSystemTest : public ::testing::Test {
  protected:
    std::string nativeBelow(std::string_view dosPath) const {
        const auto native = files.nativePath(dosPath);
        return native ? native->lexically_relative(folder.path()).string() : "(nothing)";
    }

    TestFolder folder;
    FileSystem files = folder.asDrive();
};

TEST_F(FileSystemTest, PathsAreFoundInAnyCase) {
    folder.write("Images/Menu.BMP", "");
    folder.write("Images/both.txt", "");
    folder.write("Images/BOTH.TXT", "");
    folder.write("Εικόνες/Άλφα.htm", "");
    folder.write("weird\\name/x", "");
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"C:\\Images\\Menu.BMP", "Images/Menu.BMP"},
        {"c:\\IMAGES\\menu.bmp", "Images/Menu.BMP"},
        {"c:/images/MENU.bmp", "Images/Menu.BMP"},
        {"C:\\images\\both.txt", "Images/both.txt"},  // as it is comes first
        {"C:\\images\\Both.txt", "Images/BOTH.TXT"},  // else the first by byte order
        {"C:\\εικόνες\\ΆΛΦΑ.HTM"_gr, "Εικόνες/Άλφα.htm"},
        {"C:\\", "."},
        {"C:", "."},
        {R"(C:\\Images\\Menu.BMP)", "Images/Menu.BMP"},
        {R"(C:\.\x\..\images\menu.bmp)", "Images/Menu.BMP"},
        {R"(C:\..\images\menu.bmp)", "Images/Menu.BMP"},
        {R"(C:\..\..\images\menu.bmp)", "Images/Menu.BMP"},  // never above the drive
        {"C:\\images\\new.htm", "Images/new.htm"},           // where it would be created
        {"C:\\images\\", "Images"},
        {"C:\\missing\\new.htm", "(nothing)"},
        {R"(C:\images\menu.bmp\x)", "(nothing)"},
        {"D:\\images", "(nothing)"},
        {"C:images", "(nothing)"},
        {"\\images", "(nothing)"},
        {"1:\\x", "(nothing)"},
        {"", "(nothing)"},
        {std::string_view("C:\\a\0b", 6), "(nothing)"},
    };
    for (const auto& [dosPath, expected] : cases) {
        EXPECT_EQ(nativeBelow(dosPath), expected) << dosPath;
    }
}

TEST_F(FileSystemTest, NativePathsGoBackToTheNearestDrive) {
    files.setDrives({{'C', DriveType::fixed, folder / "c/"},
                     {'D', DriveType::cdrom, folder / "c" / "disc"},
                     {'z', DriveType::remote, "/"}});
    EXPECT_EQ(files.dosPath(folder / "c/a/Δ.htm"), "C:\\a\\\xC4.htm");
    EXPECT_EQ(files.dosPath(folder / "c/disc/a.htm"), "D:\\a.htm");
    EXPECT_EQ(files.dosPath(folder / "c/disc/../x"), "C:\\x");
    EXPECT_EQ(files.dosPath(folder / "c/discs"), "C:\\discs");  // a longer name is no folder below
    EXPECT_EQ(files.dosPath(folder / "c"), "C:\\");
    EXPECT_EQ(files.dosPath("/usr/x"), "Z:\\usr\\x");
    EXPECT_EQ(files.dosPath(folder / "c/日.htm"), std::nullopt);
    EXPECT_EQ(files.dosPath(folder / "c/a\\b"), std::nullopt);
    files.setDrives({});
    EXPECT_EQ(files.dosPath("/usr/x"), std::nullopt);
}

TEST_F(FileSystemTest, DrivesHaveTypes) {
    files.setDrives({{'d', DriveType::cdrom, "/nowhere"}, {'A', DriveType::removable, "/"}});
    EXPECT_EQ(files.driveType('D'), DriveType::cdrom);
    EXPECT_EQ(files.driveType('a'), DriveType::removable);
    EXPECT_EQ(files.driveType('C'), DriveType::noRoot);
    EXPECT_FALSE(files.listFolder("D:\\"));  // no medium
    EXPECT_FALSE(files.nativePath("D:\\a.htm"));
}

TEST_F(FileSystemTest, WritingFindsTheFileThatIsThere) {
    folder.write("Cache/1.HTM", "old and long");
    auto file = files.openForWriting("C:\\cache\\1.htm");
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.write("new", 3));
    EXPECT_TRUE(file.close());
    EXPECT_EQ(folder.read("Cache/1.HTM"), "new");
    EXPECT_FALSE(std::filesystem::exists(folder / "Cache/1.htm"));
    EXPECT_TRUE(files.openForWriting("C:\\cache\\2.htm"));
    EXPECT_FALSE(files.openForWriting("C:\\none\\2.htm"));
    EXPECT_FALSE(files.openForWriting("C:\\cache"));
}

TEST_F(FileSystemTest, WritingFollowsWhatHappensToTheFolder) {
    const auto write = [this](std::string_view dosPath) {
        return static_cast<bool>(files.openForWriting(dosPath));
    };
    // Longer than the host's clock ticks, so that the folder's time tells of each change.
    const auto pause = [] { std::this_thread::sleep_for(std::chrono::milliseconds(20)); };
    EXPECT_TRUE(write("C:\\1.htm"));
    EXPECT_TRUE(write("C:\\2.htm"));
    EXPECT_TRUE(write("C:\\2.HTM"));  // the one just created
    EXPECT_EQ(folder.count(), 2U);

    pause();
    folder.write("3.HTM", "by another program");
    EXPECT_TRUE(write("C:\\3.htm"));
    EXPECT_EQ(folder.count(), 3U);
    EXPECT_EQ(folder.read("3.HTM"), "");

    EXPECT_TRUE(files.deleteFile("C:\\3.HTM"));
    EXPECT_TRUE(write("C:\\3.htm"));
    EXPECT_TRUE(files.deleteFile("C:\\1.HTM"));
    EXPECT_TRUE(write("C:\\1.Htm"));
    EXPECT_EQ(folder.count(), 3U);
    EXPECT_TRUE(std::filesystem::exists(folder / "3.htm"));
    EXPECT_TRUE(std::filesystem::exists(folder / "1.Htm"));

    pause();
    std::filesystem::rename(folder / "2.htm", folder / "Two");
    EXPECT_TRUE(write("C:\\2.htm"));
    std::filesystem::create_directory(folder / "other");
    EXPECT_TRUE(write("C:\\OTHER\\1.htm"));
    EXPECT_TRUE(std::filesystem::exists(folder / "other/1.htm"));
    EXPECT_TRUE(files.deleteFile("C:\\other\\1.htm"));
    EXPECT_TRUE(files.removeFolder("C:\\other"));
    EXPECT_FALSE(write("C:\\other\\1.htm"));
}

TEST_F(FileSystemTest, LongerFilesAreReadInPartOrNotAtAll) {
    folder.write("f", std::string("ab\0\x1A\r\n", 6));
    folder.write("empty", "");
    EXPECT_EQ(files.readAll("C:\\F", 5), std::nullopt);
    EXPECT_EQ(files.readAll("C:\\F", 6), std::string("ab\0\x1A\r\n", 6));
    EXPECT_EQ(files.readStart("C:\\F", 3), std::string("ab\0", 3));
    EXPECT_EQ(files.readStart("C:\\F", 10), files.readAll("C:\\f", 10));
    EXPECT_EQ(files.readAll("C:\\empty", 10), "");
    EXPECT_EQ(files.readAll("C:\\g", 10), std::nullopt);
    EXPECT_EQ(files.readAll("C:\\", 10), std::nullopt);
}

TEST_F(FileSystemTest, OnlyRegularFilesOpenAndNothingIsWaitedFor) {
    folder.write("folder/x", "");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    files.setDrives({{'C', DriveType::fixed, folder.path()}, {'Z', DriveType::fixed, "/"}});
    for (const char* const name : {"C:\\folder", "C:\\pipe", "C:\\PIPE", "Z:\\dev\\zero"}) {
        EXPECT_FALSE(files.openForReading(name)) << name;
        EXPECT_FALSE(files.copyFile(name, "C:\\copy")) << name;
    }
    EXPECT_FALSE(files.openForWriting("C:\\pipe"));
}

TEST_F(FileSystemTest, NoLinkLeadsOutOfTheContentFolder) {
    folder.write("data/a.htm", "page");
    folder.write("datas/secret", "outside");
    fs::create_symlink("../datas/secret", folder / "data/up.htm");
    fs::create_symlink(folder / "datas/secret", folder / "data/absolute.htm");
    fs::create_symlink("data", folder / "named");
    const std::pair<const char*, bool> cases[] = {
        {"A.HTM", true}, {"UP.HTM", false}, {"absolute.htm", false}};
    for (const char* const content : {"C:\\data", "C:\\DATA\\", "C:\\named\\"}) {
        files.setContentFolder(content);
        for (const auto& [name, opens] : cases) {
            const std::string path = std::string(content) + "\\" + name;
            EXPECT_EQ(static_cast<bool>(files.openForReading(path)), opens) << path;
        }
    }
    EXPECT_TRUE(files.openForReading("C:\\datas\\secret"));
}

TEST_F(FileSystemTest, OnlyRegularFilesBelowAFolderOpenWhicheverWayTheHostKnows) {
    folder.write("data/sub/a.htm", "page");
    folder.write("datas/secret", "outside");
    ASSERT_EQ(::mkfifo((folder / "data/pipe").c_str(), 0600), 0);
    fs::create_symlink("sub/a.htm", folder / "data/inside");
    fs::create_symlink("../datas/secret", folder / "data/up");
    fs::create_symlink("../datas", folder / "data/outside");
    fs::create_symlink("/dev/zero", folder / "data/device");
    fs::create_symlink("data", folder / "named");
    const std::pair<const char*, bool> cases[] = {
        {"sub/a.htm", true}, {"sub/../sub/a.htm", true}, {"inside", true}, {"none", false},
        {"sub", false},      {"../datas/secret", false}, {"up", false},    {"outside/secret", false},
        {"pipe", false},     {"device", false},          {"loop", false}};
    fs::create_symlink("loop", folder / "data/loop");
    for (const auto by : {FileHandle::BeneathBy::host, FileHandle::BeneathBy::realPath}) {
        for (const char* const root : {"data", "named"}) {
            for (const auto& [name, opens] : cases) {
                EXPECT_EQ(static_cast<bool>(FileHandle::openBeneath(folder / root, name, by)), opens)
                    << root << '/' << name << (by == FileHandle::BeneathBy::host ? "" : ", by real path");
            }
        }
    }
}

TEST_F(FileSystemTest, MountedFolderTakesThePlaceOfWhatIsThere) {
    folder.write("c/Kalyxo/cache", "in the way");
    folder.write("elsewhere/1.htm", "page");
    files.setDrives({{'C', DriveType::fixed, folder / "c"}});
    files.mount("C:\\Kalyxo\\cache", folder / "elsewhere");
    EXPECT_EQ(files.readAll("c:\\KALYXO\\Cache\\1.HTM", 10), "page");
    EXPECT_TRUE(files.isFolder("C:\\Kalyxo\\cache"));
    EXPECT_TRUE(files.openForWriting("C:\\Kalyxo\\cache\\2.htm"));
    EXPECT_TRUE(fs::exists(folder / "elsewhere/2.htm"));
    EXPECT_TRUE(files.deleteFile("C:\\Kalyxo\\cache\\2.htm"));
    EXPECT_EQ(files.dosPath(folder / "elsewhere/1.htm"), "C:\\Kalyxo\\cache\\1.htm");
    EXPECT_EQ(files.dosPath(folder / "c/Kalyxo/x"), "C:\\Kalyxo\\x");
    EXPECT_FALSE(files.exists("C:\\Kalyxo\\caches"));
}

TEST_F(FileSystemTest, FilesAreCopiedMovedAndDeleted) {
    folder.write("a", "content");
    folder.write("B", "a former and longer content");
    EXPECT_TRUE(files.copyFile("C:\\A", "C:\\b"));
    EXPECT_EQ(folder.read("B"), "content");
    EXPECT_FALSE(files.copyFile("C:\\none", "C:\\b"));
    EXPECT_FALSE(files.copyFile("C:\\", "C:\\b"));
    EXPECT_EQ(folder.read("B"), "content");

    EXPECT_FALSE(files.moveFile("C:\\a", "C:\\b"));
    EXPECT_TRUE(files.moveFile("C:\\a", "C:\\a.old"));
    EXPECT_EQ(folder.read("a.old"), "content");
    EXPECT_TRUE(files.deleteFile("C:\\A.OLD"));
    EXPECT_FALSE(files.deleteFile("C:\\a.old"));
    EXPECT_EQ(folder.count(), 1U);
}

TEST_F(FileSystemTest, FoldersAreMadeAndRemoved) {
    EXPECT_TRUE(files.createFolder("C:\\one"));
    EXPECT_FALSE(files.createFolder("C:\\ONE"));
    EXPECT_FALSE(files.createFolder("C:\\two\\deep"));
    EXPECT_TRUE(files.createFolders("C:\\One\\two\\three\\"));
    EXPECT_TRUE(files.createFolders("C:\\one\\two\\three"));
    EXPECT_TRUE(std::filesystem::is_directory(folder / "one/two/three"));
    EXPECT_FALSE(files.deleteFile("C:\\one\\two\\three"));
    EXPECT_FALSE(files.removeFolder("C:\\one"));
    EXPECT_TRUE(files.removeFolder("C:\\one\\two\\Three"));
    folder.write("file", "");
    EXPECT_FALSE(files.createFolders("C:\\file\\x"));
    EXPECT_FALSE(files.removeFolder("C:\\file"));
}

TEST_F(FileSystemTest, FoldersAreListedByName) {
    folder.write("Beta/x", "");
    folder.write("alpha", "");
    folder.write("Ωμέγα/x", "");
    folder.write(".hidden", "");
    folder.write("日", "");
    std::filesystem::create_directory_symlink(folder / "Beta", folder / "link");
    const auto entries = files.listFolder("C:\\");
    ASSERT_TRUE(entries);
    std::string seen;
    for (const auto& entry : *entries) seen += entry.name + (entry.isFolder ? "/ " : " ");
    EXPECT_EQ(seen, ".hidden alpha Beta/ link/ " + std::string("Ωμέγα"_gr) + "/ ");
    EXPECT_FALSE(files.listFolder("C:\\alpha"));
}

}  // namespace
}  // namespace platform
