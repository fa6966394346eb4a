#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <future>
#include <vector>

#include "platform/base/Resources.h"
#include "platform/text/CodePage1253.h"
#include "src/host/OwnMachine.h"
#include "src/host/SharedContent.h"
#include "src/host/SpareCache.h"
#include "src/resources/ResourceTable.h"
#include "src/state/Settings.h"
#include "tests/support/TestFolder.h"

namespace kalyxo {
namespace {

namespace fs = std::filesystem;

constexpr const char* installedModule = "ActiveX/kyptgk.ocx";
constexpr const char* copiedModule = "own/c/Kalyxo/ActiveX/kyptgk.ocx";

/// What is installed, and a place for the user's machine.
class OwnMachine : public testing::Test {
  protected:
    OwnMachine() {
        platform::SetResources(ProgramResources());
        root_.write(installedModule, "version one");
        root_.write("content/data/a.htm", "<HTML>");
        root_.write("bin/kalyxo", "");
    }
    platform::Result<std::unique_ptr<platform::Machine>> open(const std::vector<MountedMedium>& media = {},
                                                              const platform::ProgressStep& step = {}) const {
        const PresentScreen present{{1280, 800, 24}, {{"SM_CXMAXIMIZED", 1288}}};
        InstalledFiles installed = FindInstalledFiles(root_ / "bin");
        installed.shared = SharedContentFolder(root_ / "kalyxo.conf");
        return OpenOwnMachine(root_ / "own", installed, present, media, step);
    }

    TestFolder root_;
};

/// As long as it exists, files cannot be longer than `bytes`, as on a disk that is full.
class LongestFile {
  public:
    explicit LongestFile(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &former_);
        const rlimit limit{bytes, former_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~LongestFile() {
        ::setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, handler_);
    }
    LongestFile(const LongestFile&) = delete;
    LongestFile& operator=(const LongestFile&) = delete;

  private:
    rlimit former_{};
    void (*handler_)(int);
};

TEST_F(OwnMachine, FirstStartNeedsNoQuestion) {
    const auto opened = open();
    ASSERT_TRUE(opened) << opened.message();
    platform::Machine& machine = **opened;
    EXPECT_TRUE(machine.files().exists("D:\\a.htm"));
    EXPECT_TRUE(machine.files().exists("Z:\\etc"));
    EXPECT_EQ(machine.files().readAll("C:\\Kalyxo\\ActiveX\\kyptgk.ocx", 100), "version one");
    const auto key = machine.registry().openKey(platform::HKEY_LOCAL_MACHINE, SettingsKeyPath());
    ASSERT_TRUE(key);
    EXPECT_EQ(key->queryString("Directory", 256), "C:\\Kalyxo");
    EXPECT_TRUE(machine.registry().openKey(platform::HKEY_CLASSES_ROOT,
                                           "CLSID\\{5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E101}\\InprocServer32"));
    const WindowLayout layout = ReadLayout(*key, platform::CRect::at(0, 0, 1280, 800));
    EXPECT_EQ(layout.frame, platform::CRect::at(128, 80, 1024, 640));
    EXPECT_EQ(layout.frameState, kFrameNormal);
    const std::string ini = machine.files().readAll("C:\\Kalyxo\\cset.ini", 1000).value_or("");
    EXPECT_NE(ini.find("Bookmark=C:\\Kalyxo\\bookmark.dat\r\n"), std::string::npos);
}

TEST_F(OwnMachine, LaterStartsFollowScreenModulesAndContentAndKeepTheRest) {
    ASSERT_TRUE(open());
    root_.write("own/c/Kalyxo/bookmark.dat", "kept");
    root_.write(installedModule, "version two");
    fs::rename(root_ / "content", root_ / "elsewhere");
    root_.write("share/kalyxo/content/a.htm", "<HTML>");

    const auto opened = open();
    ASSERT_TRUE(opened) << opened.message();
    EXPECT_EQ((*opened)->screen().width, 1280);
    EXPECT_EQ((*opened)->metric(platform::SM_CXMAXIMIZED), 1288);
    EXPECT_EQ(root_.read(copiedModule), "version two");
    EXPECT_TRUE((*opened)->files().exists("D:\\a.htm"));
    EXPECT_EQ(root_.read("own/c/Kalyxo/bookmark.dat"), "kept");
}

TEST_F(OwnMachine, MakingThatWasBrokenOffIsTakenUpAgain) {
    for (const char* missing : {"own/registry.reg", "own/machine.json"}) {
        ASSERT_TRUE(open());
        fs::remove(root_ / missing);
        fs::remove(root_ / copiedModule);
        const std::string half = copiedModule + std::string(".4711-0.tmp");
        root_.write(half, "x");
        const auto opened = open();
        ASSERT_TRUE(opened) << opened.message();
        EXPECT_TRUE((*opened)->registry().openKey(platform::HKEY_LOCAL_MACHINE, SettingsKeyPath()));
        EXPECT_TRUE((*opened)->files().exists("D:\\a.htm")) << missing;
        EXPECT_EQ(root_.read(copiedModule), "version one");
        EXPECT_FALSE(fs::exists(root_ / half));
    }
}

TEST_F(OwnMachine, WhatIsMissingIsMadeAgain) {
    ASSERT_TRUE(open());
    root_.write("own/c/Kalyxo/bookmark.dat", "kept");
    for (const char* missing :
         {"own/c/Kalyxo/ActiveX", "own/c/Kalyxo/cset.ini", "own/c/Temp", "own/c/Kalyxo", "own/c"}) {
        fs::remove_all(root_ / missing);
        const auto opened = open();
        ASSERT_TRUE(opened) << missing;
        EXPECT_EQ(root_.read(copiedModule), "version one") << missing;
        EXPECT_NE(root_.read("own/c/Kalyxo/cset.ini").find("DataPath=D:\\\r\n"), std::string::npos)
            << missing;
        EXPECT_TRUE(fs::exists(root_ / "own/c/Kalyxo/kalyxo.exe")) << missing;
        EXPECT_TRUE(fs::is_directory(root_ / "own/c/Temp")) << missing;
        EXPECT_EQ(
            fs::exists(root_ / "own/c/Kalyxo/bookmark.dat"),
            !std::string_view(missing).ends_with("Kalyxo") && !std::string_view(missing).ends_with("/c"));
        root_.write("own/c/Kalyxo/bookmark.dat", "kept");
    }
}

TEST_F(OwnMachine, SettingsAndRegistrationsThatAreMissingAreMadeAgainAndOthersStay) {
    ASSERT_TRUE(open());
    root_.write("own/registry.reg",
                "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CLASSES_ROOT\\CLSID\\"
                "{5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E101}\\InprocServer32]\r\n@=\"C:\\\\mine.ocx\"\r\n");
    ASSERT_TRUE(open());
    const auto opened = open();
    ASSERT_TRUE(opened);
    platform::Registry& registry = (*opened)->registry();
    EXPECT_EQ(
        registry.openKey(platform::HKEY_LOCAL_MACHINE, SettingsKeyPath())->queryString("Directory", 256),
        "C:\\Kalyxo");
    const std::string reg = root_.read("own/registry.reg");
    EXPECT_NE(reg.find("mine.ocx"), std::string::npos);
    EXPECT_NE(reg.find("kzzoomgk.ocx"), std::string::npos);
}

TEST_F(OwnMachine, IniEditedByHandKeepsItsTextAndGetsItsLineEnds) {
    ASSERT_TRUE(open());
    root_.write("own/c/Kalyxo/cset.ini", "[Settings]\nDataPath=E:\\x\r\nBookmark=C:\\b.dat\n");
    ASSERT_TRUE(open());
    EXPECT_EQ(root_.read("own/c/Kalyxo/cset.ini"), "[Settings]\r\nDataPath=E:\\x\r\nBookmark=C:\\b.dat\r\n");
    fs::remove(root_ / "own/registry.reg");
    ASSERT_TRUE(open());
    EXPECT_NE(root_.read("own/c/Kalyxo/cset.ini").find("E:\\x"), std::string::npos);
}

TEST_F(OwnMachine, ContentThatIsInstalledLaterIsTheDisc) {
    fs::rename(root_ / "content", root_ / "elsewhere");
    ASSERT_TRUE(open());
    fs::rename(root_ / "elsewhere", root_ / "content");
    const auto opened = open();
    ASSERT_TRUE(opened);
    EXPECT_TRUE((*opened)->files().exists("D:\\a.htm"));
    EXPECT_EQ((*opened)->files().driveType('D'), platform::DriveType::cdrom);
}

TEST_F(OwnMachine, ContentThatIsSetForAllUsersIsTheDiscAsLongAsItIsSet) {
    root_.write("class/a.htm", "for the class");
    const auto start = [this] {
        const auto opened = open();
        return opened ? (*opened)->files().readAll("D:\\a.htm", 100).value_or("") : opened.message();
    };
    const std::string folder = root_ / "class";
    const std::string lines[] = {"content = " + folder,
                                 "# content = /x\r\n\tcontent=" + folder + " \r\nother = 1",
                                 "content = /x\ncontent = " + folder};
    for (const std::string& text : lines) {
        root_.write("kalyxo.conf", text);
        EXPECT_EQ(start(), "for the class") << text;
        root_.write("kalyxo.conf", "#" + text.substr(0, 9) + "\ncontent = class\ncontents = " + folder);
        EXPECT_EQ(start(), "<HTML>");
    }
    fs::remove(root_ / "kalyxo.conf");
    EXPECT_EQ(start(), "<HTML>");
    EXPECT_TRUE(HoldsContent(folder));
    EXPECT_FALSE(HoldsContent(root_ / "bin"));
}

TEST_F(OwnMachine, ModuleThatFindsNoRoomIsNamedAndMadeAtALaterStart) {
    root_.write(installedModule, std::string(20000, 'x'));
    {
        const LongestFile full(10000);
        const auto opened = open();
        ASSERT_FALSE(opened);
        EXPECT_NE(opened.message().find(copiedModule), std::string::npos) << opened.message();
    }
    ASSERT_TRUE(open());
    EXPECT_EQ(root_.read(copiedModule).size(), 20000U);
    root_.write(installedModule, std::string(30000, 'y'));
    const LongestFile full(10000);
    EXPECT_TRUE(open()) << "an older module will do";
}

TEST_F(OwnMachine, EachCauseHasItsMessageAndNamesTheFile) {
    ASSERT_TRUE(open());
    const auto says = [this](std::string_view words, const std::string& name) {
        const auto opened = open();
        ASSERT_FALSE(opened) << name;
        const std::string message = platform::toUtf8(opened.message());
        EXPECT_NE(message.find(words), std::string::npos) << message;
        EXPECT_NE(message.find((root_ / name).string()), std::string::npos) << message;
    };
    root_.write("own/registry.reg", "no registry");
    says("είναι κατεστραμμένο", "own/registry.reg");
    EXPECT_EQ(root_.read("own/registry.reg"), "no registry");
    fs::remove(root_ / "own/registry.reg");
    fs::create_directory(root_ / "own/registry.reg");
    says("δεν μπορεί να διαβάσει", "own/registry.reg");
    fs::remove_all(root_ / "own");
    root_.write("own", "a file");
    says("δεν μπορεί να διαβάσει", "own");
    fs::remove(root_ / "own");
    fs::create_symlink(root_ / "nowhere/at all", root_ / "own");
    says("δεν μπορεί να διαβάσει", "own");
    fs::remove(root_ / "own");
    root_.write("own/c", "a file");
    says("δεν μπορεί να δημιουργήσει", "own/c");
}

TEST_F(OwnMachine, CacheThatCannotBeWrittenLiesElsewhereUntilTheEnd) {
    const auto opened = open();
    ASSERT_TRUE(opened);
    const platform::FileSystem& files = (*opened)->files();
    root_.write("own/c/Kalyxo/cache", "in the way");
    fs::path elsewhere;
    {
        const SpareCache spare(**opened);
        elsewhere = files.nativePath("C:\\Kalyxo\\cache").value_or("");
        EXPECT_TRUE(files.openForWriting("C:\\Kalyxo\\cache\\1.htm"));
        EXPECT_TRUE(fs::exists(elsewhere / "1.htm"));
    }
    EXPECT_FALSE(fs::exists(elsewhere));
    fs::remove(root_ / "own/c/Kalyxo/cache");
    {
        const auto crowded = open();
        const LongestFile full(10000);
        const SpareCache spare(**crowded);
        EXPECT_NE((*crowded)->files().nativePath("C:\\Kalyxo\\cache"), root_ / "own/c/Kalyxo/cache");
    }
    const auto usual = open();
    const SpareCache none(**usual);
    EXPECT_TRUE(fs::is_empty(root_ / "own/c/Kalyxo/cache"));
    EXPECT_EQ((*usual)->files().nativePath("C:\\Kalyxo\\cache"), root_ / "own/c/Kalyxo/cache");
}

TEST_F(OwnMachine, CopyingThatIsCancelledIsTakenUpAgain) {
    root_.write("ActiveX/kzselectgk.ocx", "version one");
    const auto cancelled = [](const auto& opened) { return opened && *opened == nullptr; };
    const auto cancelAt = [](std::uint64_t count) {
        return [count](std::uint64_t done, std::uint64_t total) {
            EXPECT_EQ(total, 2U);
            return done < count;
        };
    };
    for (const std::uint64_t count : {0U, 1U}) {
        EXPECT_TRUE(cancelled(open({}, cancelAt(count))));
        EXPECT_FALSE(fs::exists(root_ / "own/registry.reg"));
    }
    ASSERT_TRUE(open());
    EXPECT_EQ(root_.read(copiedModule), "version one");
    root_.write(installedModule, "version two");
    EXPECT_TRUE(cancelled(open({}, cancelAt(0))));
    EXPECT_EQ(root_.read(copiedModule), "version one");
    EXPECT_FALSE(cancelled(open({}, cancelAt(2))));
    EXPECT_EQ(root_.read(copiedModule), "version two");
}

TEST_F(OwnMachine, DamagedDescriptionIsNamedAndLeftAndNothingInstalledIsAnError) {
    ASSERT_TRUE(open());
    root_.write("own/machine.json", "no JSON");
    const auto opened = open();
    EXPECT_FALSE(opened);
    EXPECT_NE(opened.message().find((root_ / "own/machine.json").string()), std::string::npos);
    EXPECT_EQ(root_.read("own/machine.json"), "no JSON");
    fs::remove_all(root_ / "own");
    fs::remove(root_ / installedModule);
    root_.write("ActiveX/readme.txt", "");
    EXPECT_FALSE(open());
}

TEST_F(OwnMachine, MediaAreDrivesAndKeepTheirLetters) {
    root_.write("stick/a.htm", "<HTML>");
    const MountedMedium stick{root_ / "stick", platform::DriveType::removable};
    const MountedMedium net{root_ / "earlier in the alphabet", platform::DriveType::remote};
    ASSERT_TRUE(open({stick}));
    const auto opened = open({net, stick});
    ASSERT_TRUE(opened) << opened.message();
    const platform::FileSystem& files = (*opened)->files();
    EXPECT_EQ(files.driveType('E'), platform::DriveType::removable);
    EXPECT_TRUE(files.exists("E:\\a.htm"));
    EXPECT_EQ(files.driveType('F'), platform::DriveType::remote);
    EXPECT_EQ(files.driveType('G'), platform::DriveType::noRoot);
    EXPECT_EQ((*open())->files().driveType('E'), platform::DriveType::noRoot);
}

TEST_F(OwnMachine, ProgramsThatStartAtOnceMakeItOnce) {
    std::vector<std::future<bool>> starts(8);
    for (auto& start : starts) {
        start = std::async(std::launch::async, [this] {
            const auto opened = open();
            if (!opened) return false;
            auto key = (*opened)->registry().createKey(platform::HKEY_LOCAL_MACHINE, SettingsKeyPath());
            return key && key->queryString("Directory", 256) == "C:\\Kalyxo" && key->setDword("Left", 7) &&
                   (*opened)->flushRegistry();
        });
    }
    for (auto& start : starts) EXPECT_TRUE(start.get());
    // Had one made it after another had closed, the layout would be gone.
    const auto opened = open();
    ASSERT_TRUE(opened) << opened.message();
    const auto key = (*opened)->registry().openKey(platform::HKEY_LOCAL_MACHINE, SettingsKeyPath());
    EXPECT_EQ(key->queryDword("Left"), 7U);
}

TEST_F(OwnMachine, LiesInTheUsersDataFolder) {
    ::setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(OwnMachineFolder(), "/data/kalyxo");
    ::setenv("XDG_DATA_HOME", "relative/counts/as/unset", 1);
    ::setenv("HOME", "/home/x", 1);
    EXPECT_EQ(OwnMachineFolder(), "/home/x/.local/share/kalyxo");
    ::unsetenv("XDG_DATA_HOME");
    ::unsetenv("HOME");
    EXPECT_EQ(OwnMachineFolder(), fs::path(::getpwuid(::getuid())->pw_dir) / ".local/share/kalyxo");
}

}  // namespace
}  // namespace kalyxo
