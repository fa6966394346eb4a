#include "controls/select/model/TopicList.h"

#include <gtest/gtest.h>

#include "tests/controls/select/SampleIndex.h"

using namespace controls::select;
using namespace platform::literals;

namespace {

class TopicListTest : public testing::Test {
  protected:
    TopicListTest() { list_.setSection(formats::findSection(index_, sample::elements)); }

    /// The listed titles in UTF-8, with the entries of opened topics, such as "Topic > Entry > Entry |
    /// Topic".
    std::string listed() const {
        std::string text;
        for (const auto& topic : list_.topics()) {
            text += (text.empty() ? "" : " | ") + platform::toUtf8(list_.title({topic.topic, std::nullopt}));
            if (!list_.opened(topic.topic)) continue;
            for (const std::size_t entry : topic.entries) {
                text += " > " + platform::toUtf8(list_.title({topic.topic, entry}));
            }
        }
        return text;
    }

    const formats::BrowseIndex index_ = sample::index();
    TopicList list_;
};

TEST_F(TopicListTest, NarrowsWithoutCaseAndAccents) {
    const struct {
        std::string_view typed;
        const char* listed;
    } cases[] = {
        {"ΝΕΡΌ"_gr, "Νερό"},
        {"αλατα"_gr, "Οξέα, ΆΛΑΤΑ και βάσεις"},
        {"ΛΊΘ"_gr, "Τα αλκάλια > Λίθιο"},
        {"αλκαλια"_gr, "Τα αλκάλια"},
        {"  "_gr, "Στοιχεία και ενώσεις | Τα αλκάλια | Οξέα, ΆΛΑΤΑ και βάσεις | Νερό"},
        {"και οξέα"_gr, "Οξέα, ΆΛΑΤΑ και βάσεις"},
        {"νερό λίθιο"_gr, ""},
        {"οξ"_gr, "Οξέα, ΆΛΑΤΑ και βάσεις > Θειικό οξύ > Υδροχλωρικό οξύς"},
        // Sigma in the middle finds the one at the end, and the other way round.
        {"ΒΑΣΕΙΣ"_gr, "Οξέα, ΆΛΑΤΑ και βάσεις"},
        {"βάςεισ"_gr, "Οξέα, ΆΛΑΤΑ και βάσεις"},
    };
    for (const auto& c : cases) {
        list_.narrow(c.typed);
        EXPECT_EQ(listed(), c.listed) << platform::toUtf8(c.typed);
    }
}

TEST_F(TopicListTest, FirstMatchIsTheFirstTitleThatPassesItself) {
    EXPECT_EQ(list_.firstMatch(), std::nullopt);
    const struct {
        std::string_view typed;
        std::optional<Row> row;
    } cases[] = {
        {"νατρ"_gr, Row{1, 1}}, {"αλκ"_gr, Row{1, {}}}, {"οξυ"_gr, Row{2, 0}},
        {"οξ"_gr, Row{2, {}}},  {"ψψ"_gr, {}},
    };
    for (const auto& c : cases) {
        list_.narrow(c.typed);
        EXPECT_EQ(list_.firstMatch(), c.row) << platform::toUtf8(c.typed);
    }
}

TEST_F(TopicListTest, OpenedTopicsComeBackAfterNarrowing) {
    list_.setOpened(1, true);
    list_.narrow("οξύ"_gr);
    list_.setOpened(2, false);
    EXPECT_EQ(listed(), "Οξέα, ΆΛΑΤΑ και βάσεις");
    list_.narrow(""_gr);
    EXPECT_EQ(listed(), "Στοιχεία και ενώσεις | Τα αλκάλια > Λίθιο > Νάτριο | Οξέα, ΆΛΑΤΑ και βάσεις | Νερό");
}

TEST_F(TopicListTest, FoundPartsAreMergedAndOrdered) {
    list_.narrow("αι και λατ ΟΞΕ"_gr);
    // "Οξέα, ΆΛΑΤΑ και βάσεις": the overlap of two words is one part.
    EXPECT_EQ(list_.spans({2, std::nullopt}), (std::vector<Span>{{0, 3}, {7, 3}, {12, 3}}));
}

TEST(TopicList, ListsNothingWithoutASection) {
    TopicList list;
    list.narrow("α"_gr);
    EXPECT_TRUE(list.topics().empty());
    list.setSection(nullptr);
    EXPECT_TRUE(list.topics().empty());
    EXPECT_FALSE(list.contains({0, std::nullopt}));
}

}  // namespace
