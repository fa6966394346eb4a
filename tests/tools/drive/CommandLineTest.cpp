#include <gtest/gtest.h>

#include <vector>

#include "tools/drive/script/CommandLine.h"

namespace drive {
namespace {

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
        {"--new-machine", "m", "--data", "d", "--follow"},
        {"--machine", "m", "--quick"},
    };
    for (const auto& arguments : wrong) {
        EXPECT_NE(taskOf(arguments).message(), "") << testing::PrintToString(arguments);
    }
    EXPECT_TRUE(usage().starts_with("usage: kalyxo-drive --machine DIR [--follow] [SCRIPT]\n"));
    EXPECT_NE(usage().find("kalyxo-drive --new-machine DIR --data FOLDER [--outside] [--bare]\n"),
              usage().npos);
}

}  // namespace
}  // namespace drive
