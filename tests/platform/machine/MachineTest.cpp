#include "platform/machine/Machine.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>

#include "tests/support/TestFolder.h"

namespace platform {
namespace {

TEST(Machine, AFolderWithoutFilesIsABareMachine) {
    const TestFolder folder;
    const auto opened = Machine::open(folder.path());
    ASSERT_TRUE(opened) << opened.message();
    Machine& bare = **opened;
    EXPECT_EQ(bare.programPath(), "C:\\Program\\program.exe");
    EXPECT_EQ(bare.tempFolder(), "C:\\Temp\\");
    EXPECT_EQ(bare.systemFolder(), "C:\\Windows\\System");
    EXPECT_FALSE(bare.registry().openKey(HKEY_LOCAL_MACHINE, "Software"));
    EXPECT_EQ(bare.files().dosPath(folder / "c/x"), "C:\\x");
    EXPECT_EQ(bare.metric(SM_CYMAXIMIZED), 748);
    EXPECT_EQ(bare.metric(static_cast<SystemMetric>(99)), 0);
    EXPECT_FALSE(Machine::open(folder / "none"));
}

TEST(Machine, ProgramsOnOneFolderKeepEachOthersChanges) {
    const TestFolder folder;
    const auto open = [&] { return *Machine::open(folder.path()); };
    const auto set = [](Machine& on, const char* key, const char* name, std::uint32_t number) {
        on.registry().createKey(HKEY_LOCAL_MACHINE, key)->setDword(name, number);
    };
    const auto before = open();
    set(*before, "Layout", "left", 1);
    set(*before, "Layout", "right", 1);
    ASSERT_TRUE(before->flushRegistry());

    const auto first = open();
    const auto second = open();
    const auto third = open();
    set(*first, "Layout", "left", 2);
    set(*first, "Layout", "right", 2);
    set(*first, "Layout\\Below", "new", 2);
    ASSERT_TRUE(first->flushRegistry());
    set(*second, "Other", "n", 3);
    ASSERT_TRUE(second->flushRegistry());
    const auto number = [&](const char* key, const char* name) {
        const auto opened = open();
        const auto found = opened->registry().openKey(HKEY_LOCAL_MACHINE, key);
        return found ? found->queryDword(name) : std::nullopt;
    };
    EXPECT_EQ(number("Layout", "left"), 2U);
    EXPECT_EQ(number("Layout\\Below", "new"), 2U);
    EXPECT_EQ(number("Other", "n"), 3U);

    // Values of a key belong together, like the sides of a rectangle.
    set(*third, "Layout", "left", 9);
    ASSERT_TRUE(third->flushRegistry());
    EXPECT_EQ(number("Layout", "left"), 9U);
    EXPECT_EQ(number("Layout", "right"), 1U);
    EXPECT_EQ(number("Other", "n"), 3U);

    // A change that is written already does not count as a change again.
    set(*first, "Late", "n", 4);
    ASSERT_TRUE(first->flushRegistry());
    EXPECT_EQ(number("Layout", "left"), 9U);
    EXPECT_EQ(number("Late", "n"), 4U);
}

TEST(Machine, ARegistryFileThatIsGoneOrDamagedIsWrittenAnew) {
    const TestFolder folder;
    const auto computer = *Machine::open(folder.path());
    computer->registry().createKey(HKEY_LOCAL_MACHINE, "Key")->setDword("n", 1);
    ASSERT_TRUE(computer->flushRegistry());
    const std::string whole = folder.read("registry.reg");
    std::filesystem::remove(folder / "registry.reg");
    ASSERT_TRUE(computer->flushRegistry());
    EXPECT_EQ(folder.read("registry.reg"), whole);
    folder.write("registry.reg", "damaged");
    const std::string ofKilledProgram = "registry.reg.4711-0.tmp";
    folder.write(ofKilledProgram, "x");
    ASSERT_TRUE(computer->flushRegistry());
    EXPECT_EQ(folder.read("registry.reg"), whole);
    EXPECT_FALSE(std::filesystem::exists(folder / ofKilledProgram));
}

TEST(Machine, LibrariesAreSearchedInTheProgramFolderFirst) {
    const TestFolder folder;
    Machine computer(folder.path(), MachineConfig(), Registry());
    folder.write("c/Windows/System/msvcrt.dll", "");
    folder.write("c/Windows/System/mfc42.dll", "");
    folder.write("c/Program/MFC42.DLL", "");
    EXPECT_EQ(computer.findLibrary("mfc42.dll"), "C:\\Program\\mfc42.dll");
    EXPECT_EQ(computer.findLibrary("msvcrt.dll"), "C:\\Windows\\System\\msvcrt.dll");
    EXPECT_EQ(computer.findLibrary("oleaut32.dll"), std::nullopt);
    EXPECT_EQ(computer.findLibrary("D:\\x.dll"), "D:\\x.dll");
}

TEST(Machine, SleepIsWaitedUnlessTimeIsVirtual) {
    Machine computer("/nowhere", MachineConfig(), Registry());
    const auto before = std::chrono::steady_clock::now();
    computer.sleep(20);
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(20));
}

TEST(Machine, MessageBoxesAreAnsweredFromTheQueue) {
    using enum BoxAnswer;
    const std::vector<BoxAnswer> yesNo = {yes, no};
    Machine computer("/nowhere", MachineConfig(), Registry());
    EXPECT_EQ(computer.nextAnswer(yesNo), std::nullopt);
    computer.enableAnswers();
    computer.queueAnswers({no, yes});
    computer.queueAnswers({no});
    EXPECT_EQ(computer.nextAnswer(yesNo), no);
    EXPECT_EQ(computer.nextAnswer(std::vector<BoxAnswer>{ok}), ok);  // "yes" cannot be pressed here
    EXPECT_EQ(computer.nextAnswer(yesNo), no);
    EXPECT_EQ(computer.nextAnswer(yesNo), yes);
}

}  // namespace
}  // namespace platform
