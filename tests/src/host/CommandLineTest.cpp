#include "src/host/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/TestFolder.h"

namespace kalyxo {
namespace {

TEST(CommandLine, HelpAndVersionAreAnsweredAnywhere) {
    const std::pair<std::vector<const char*>, const char*> cases[] = {
        {{"--help"}, "Χρήση: kalyxo"},
        {{"--data", "x", "--version"}, "Kalyxo "},
        {{"--version", "--help"}, "Χρήση: "}};
    for (const auto& [arguments, begin] : cases) {
        EXPECT_EQ(AnswerTo(arguments).value_or("").substr(0, std::string_view(begin).size()), begin);
    }
    EXPECT_FALSE(AnswerTo(std::vector<const char*>{"--data", "help"}));
    EXPECT_FALSE(AnswerTo({}));
}

TEST(CommandLine, DataFolderHoldsContentAndNothingElseHasAPlace) {
    const TestFolder folder;
    folder.write("content/a.htm", "<HTML>");
    folder.write("empty/x", "");
    folder.write("odd/a.htm/x", "");
    const std::string content = folder / "content";
    const std::string empty = folder / "empty";
    const std::string odd = folder / "odd";
    EXPECT_EQ(*GivenDataFolder({}), "");
    EXPECT_EQ(*GivenDataFolder(std::vector{"--data", content.c_str()}), std::filesystem::canonical(content));
    const std::vector<const char*> following{"--data", content.c_str(), "--follow"};
    EXPECT_EQ(*GivenDataFolder(following), std::filesystem::canonical(content));
    EXPECT_TRUE(FollowsContent(following));
    const std::vector<const char*> wrong[] = {
        {"--data"},
        {"--data", empty.c_str()},
        {"--data", odd.c_str()},
        {"--data", "/nowhere"},
        {"--data", content.c_str(), "more"},
        {"--data", content.c_str(), "--follow", "more"},
        {"--follow"},
        {content.c_str()},
        {"--bare"},
        {""},
    };
    for (const auto& arguments : wrong) {
        const auto given = GivenDataFolder(arguments);
        ASSERT_FALSE(given) << arguments.back();
        EXPECT_NE(given.failure().message.find(": "), std::string::npos);
    }
}

}  // namespace
}  // namespace kalyxo
