#include "src/view/BookmarkCommands.h"

#include <gtest/gtest.h>

#include "platform/base/Resources.h"
#include "platform/text/GreekLiteral.h"
#include "src/resources/ResourceTable.h"
#include "tests/src/view/ContentHostProbe.h"

namespace kalyxo {
namespace {

using namespace platform::literals;

/// Components without windows answer with nothing.
TEST(BookmarkCommandsTest, RecordWhatIsOnShowAndBringItBack) {
    platform::SetResources(ProgramResources());
    ContentHostProbe host;
    HostedComponents components;
    BookmarkCommands commands(components, host.navigator, host);
    host.navigator.OpenStartPage(2);
    EXPECT_EQ(commands.ProposedName(ContentMode::Page), "Δομές - Introduction"_gr);
    EXPECT_EQ(commands.ProposedName(ContentMode::DataAnalyser), "Data Analyser - 1");
    const auto page = commands.MakeBookmark(ContentMode::Page, "page");
    host.navigator.OpenTopic({3, 290123, 0});
    const auto topic = commands.MakeBookmark(ContentMode::Page, "topic");
    const struct {
        std::unique_ptr<CBookmark> bookmark;
        std::vector<std::string> calls;
        PageAddress address;
    } cases[] = {
        {page->Renamed("copy"), {"section 2", "page 370001"}, {2, 370001, 0}},
        {topic->Renamed("copy"), {"section 3", "item 290123/0", "page 290123"}, {3, 290123, 0}},
        {commands.MakeBookmark(ContentMode::PeriodicTable, "table"), {"table"}, {3, 290123, 0}},
        {commands.MakeBookmark(ContentMode::DataAnalyser, "state"), {"analyser's state"}, {3, 290123, 0}},
    };
    for (const auto& c : cases) {
        host.takeCalls();
        commands.Open(*c.bookmark);
        EXPECT_EQ(host.takeCalls(), c.calls) << c.bookmark->name;
        EXPECT_EQ(host.navigator.Address(), c.address) << c.bookmark->name;
    }
}

}  // namespace
}  // namespace kalyxo
