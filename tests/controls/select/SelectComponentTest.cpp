#include "controls/select/SelectComponent.h"

#include <gtest/gtest.h>

#include "controls/contract/HostMessages.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "tests/controls/select/SelectHost.h"

using namespace platform::literals;
using Lines = std::vector<std::string>;

namespace {

constexpr std::int32_t getPageTitle = 2;
constexpr std::int32_t getItemTitle = 4;
constexpr std::int32_t setSection = 5;
constexpr std::int32_t showItem = 6;
constexpr std::int32_t getAuxHandle = 7;

TEST(SelectComponent, WorksBeforeItIsInitialised) {
    SelectHost host;
    host.call(setSection, sample::elements);
    host.call(showItem, 410010, 0, false);
    EXPECT_EQ(host.takeEvents(), Lines{"page 410010 410010"});
    EXPECT_EQ(host.text(getPageTitle, 410010), "");
    host.sendMessage(*host.call(getAuxHandle).get<std::int32_t>(), controls::enterInSelectEdit, 0, 0);
    EXPECT_EQ(host.takeEvents(), Lines{});
}

class WithoutIndex : public testing::TestWithParam<const char*> {};

TEST_P(WithoutIndex, ListsThePagesOfTheTitleFiles) {
    SelectHost host{std::string_view(GetParam())};
    const formats::SectionTitleRecord records[] = {{sample::text("Τα αλκάλια"_gr), 410010}};
    host.data.write("elemcomp.dat", *formats::encodeSectionTitles(records));
    const std::string titles[] = {sample::text("Υδρογόνο"_gr), sample::text("Ήλιο"_gr)};
    host.data.write("elem.ttl", *formats::encodeTitleList(titles));
    host.initialise();

    EXPECT_EQ(host.pane().view().model()->index(0, 0).data().toString(), "Τα αλκάλια");
    EXPECT_EQ(host.text(getPageTitle, 410010), "Τα αλκάλια"_gr);
    EXPECT_EQ(host.text(getPageTitle, 410020), "");
    EXPECT_EQ(host.text(getItemTitle, 10002), "Ήλιο"_gr);
    for (const std::int32_t unknown : {10003, 10000, 30001, 20001, -10001}) {
        EXPECT_EQ(host.text(getItemTitle, unknown), "") << unknown;
    }
    host.call(showItem, 410010, 10002, false);
    host.call(showItem, 410020, 0, false);
    EXPECT_EQ(host.takeEvents(), (Lines{"item 10002", "page 410020 410020"}));
}

INSTANTIATE_TEST_SUITE_P(SelectComponent, WithoutIndex,
                         testing::Values("", "KSEL", "no index at all, but some text"));

TEST(SelectComponent, TitlesComeFromTheIndexFirst) {
    SelectHost host;
    const formats::SectionTitleRecord records[] = {{"other", 410030}, {"hidden", 410099}};
    host.data.write("elemcomp.dat", *formats::encodeSectionTitles(records));
    const formats::SectionTitleRecord foreign[] = {{"foreign", 170099}, {"foreign", 410099}};
    host.data.write("react.dat", *formats::encodeSectionTitles(foreign));
    host.data.write("elem.ttl", *formats::encodeTitleList(std::vector<std::string>(10, "other")));
    host.initialise();
    EXPECT_EQ(host.text(getPageTitle, 410030), "Νερό"_gr);
    EXPECT_EQ(host.text(getPageTitle, 410099), "hidden");
    EXPECT_EQ(host.text(getPageTitle, 170099), "foreign");
    EXPECT_EQ(host.text(getItemTitle, 10003), "Λίθιο"_gr);
    EXPECT_EQ(host.text(getItemTitle, 10004), "other");
    host.call(showItem, 410020, 20001, false);
    EXPECT_EQ(host.text(getItemTitle, 0), "Οξέα, ΆΛΑΤΑ και βάσεις"_gr) << "the page on show";
}

TEST(SelectComponent, EnterMessageOpensTheFirstMatchElseTheSelectedLine) {
    SelectHost host;
    host.initialise();
    const platform::HWND aux = *host.call(getAuxHandle).get<std::int32_t>();
    const auto enter = [&] { host.sendMessage(aux, controls::enterInSelectEdit, 0, 0); };
    host.pane().field().setText("ΝΑΤΡ");
    enter();
    EXPECT_EQ(host.takeEvents(), (Lines{"page 410011 410010", "item 10011"}));
    host.pane().field().setText("ψψψ");
    enter();
    EXPECT_EQ(host.takeEvents(), Lines{});
    host.pane().field().clear();
    enter();
    EXPECT_EQ(host.takeEvents(), Lines{"item 10011"}) << "the place on show is selected again";
    host.sendMessage(aux, platform::WM_PASTE, 0, 0);
    EXPECT_EQ(host.takeEvents(), Lines{});
}

}  // namespace
