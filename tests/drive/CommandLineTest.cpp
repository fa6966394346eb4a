#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "tools/drive/CommandLine.h"

namespace drive {
namespace {

Task given(std::initializer_list<const char*> arguments) {
    return taskOf(std::vector<const char*>(arguments));
}

TEST(CommandLine, RunsAScriptOrStandardInput) {
    const Task piped = given({"--machine", "m"});
    ASSERT_TRUE(std::holds_alternative<RunScript>(piped));
    EXPECT_EQ(std::get<RunScript>(piped).machine, "m");
    EXPECT_FALSE(std::get<RunScript>(piped).script);

    const Task scripted = given({"tour.kys", "--machine", "m"});
    ASSERT_TRUE(std::holds_alternative<RunScript>(scripted));
    EXPECT_EQ(std::get<RunScript>(scripted).script, "tour.kys");
}

TEST(CommandLine, MakesMachines) {
    const Task usual = given({"--new-machine", "m", "--data", "d"});
    ASSERT_TRUE(std::holds_alternative<NewMachine>(usual));
    EXPECT_EQ(std::get<NewMachine>(usual).machine, "m");
    EXPECT_EQ(std::get<NewMachine>(usual).data, "d");
    EXPECT_FALSE(std::get<NewMachine>(usual).outside);
    EXPECT_FALSE(std::get<NewMachine>(usual).bare);

    const Task other = given({"--bare", "--data", "d", "--outside", "--new-machine", "m"});
    ASSERT_TRUE(std::holds_alternative<NewMachine>(other));
    EXPECT_TRUE(std::get<NewMachine>(other).outside);
    EXPECT_TRUE(std::get<NewMachine>(other).bare);
}

TEST(CommandLine, SaysWhatIsWrong) {
    const std::vector<std::vector<const char*>> wrong = {
        {},
        {"--machine"},
        {"script.kys"},
        {"--machine", "m", "a.kys", "b.kys"},
        {"--machine", "m", "--bare"},
        {"--machine", "m", "--data", "d"},
        {"--new-machine", "m"},
        {"--new-machine", "m", "--data"},
        {"--new-machine", "m", "--data", "d", "a.kys"},
        {"--new-machine", "m", "--machine", "m", "--data", "d"},
        {"--machine", "m", "--quick"},
    };
    for (const auto& arguments : wrong) {
        const Task task = taskOf(arguments);
        ASSERT_TRUE(std::holds_alternative<std::string>(task)) << testing::PrintToString(arguments);
        EXPECT_FALSE(std::get<std::string>(task).empty());
    }
}

}  // namespace
}  // namespace drive
