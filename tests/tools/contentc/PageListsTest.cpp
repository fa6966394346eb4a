#include <gtest/gtest.h>

#include "platform/text/CodePage1253.h"
#include "tests/tools/contentc/ContentFolder.h"

namespace {

/// What stands in `<NAV>` on a compiled page, in UTF-8 without line ends.
std::string navigationOf(ContentFolder& content, const std::string& path) {
    const std::string page = platform::toUtf8(content.compiled(path));
    EXPECT_FALSE(page.empty()) << testing::PrintToString(content.messages);
    std::string found;
    for (std::size_t at = 0; (at = page.find("<NAV", at)) != std::string::npos;) {
        const std::size_t end = page.find("</NAV>", at);
        found += page.substr(at, end - at);
        at = end;
    }
    std::erase_if(found, [](char c) { return c == '\r' || c == '\n'; });
    return found;
}

class PageLists : public testing::Test {
  protected:
    PageLists() {
        content_.write("pages/uses/400000.md", "τίτλος: Πράξη\n---\nΑρχή.\n");
        content_.write("pages/uses/400020-b.md",
                       "τίτλος: Βαφές\nσειρά: 1\nπερίληψη: Με χρώμα.\nτάξη: Β΄ Γυμνασίου 10.2\nδες: 10001; "
                       "Άλατα; Βαφές\n---\n");
        content_.write("pages/uses/400010-a.md",
                       "τίτλος: Άλατα\nσειρά: 2\nπερίληψη: Με νερό.\nτάξη: Β' Γυμνασίου 9.1; Γ΄ Λυκείου\n"
                       "πριν: βαφές; αέρια\nέτος: -460\n---\n");
        content_.write("pages/uses/40001.md", "τίτλος: Αλάτι\nθέμα: Άλατα\nέτος: περ. 1743\n---\n");
    }

    ContentFolder content_;
};

const std::string linkA = "<A HREF=\"kzpage-4-400010-0.htm\">Άλατα</A>";
const std::string linkB = "<A HREF=\"kzpage-4-400020-0.htm\">Βαφές</A>";
const std::string summaryA = " <SPAN CLASS=\"summary\">Με νερό.</SPAN></LI>";
const std::string summaryB = " <SPAN CLASS=\"summary\">Με χρώμα.</SPAN></LI>";

TEST_F(PageLists, StartPageHasItsTopicsInOrder) {
    EXPECT_EQ(
        navigationOf(content_, "40\\0000"),
        "<NAV CLASS=\"contents\" ARIA-LABEL=\"Σε αυτή την ενότητα\"><H2>Σε αυτή την ενότητα</H2><UL><LI>" +
            linkB + summaryB + "<LI>" + linkA + summaryA + "</UL>");
}

TEST_F(PageLists, TopicHasItsEntriesAndItsRelations) {
    EXPECT_EQ(
        navigationOf(content_, "40\\0010"),
        "<NAV CLASS=\"contents short\" ARIA-LABEL=\"Σε αυτό το θέμα\"><H2>Σε αυτό το θέμα</H2><UL><LI><A "
        "HREF=\"kzpage-4-400010-40001.htm\">Αλάτι</A></LI></UL>"
        "<NAV CLASS=\"related\" ARIA-LABEL=\"Σχετικές σελίδες\"><DIV><H2>Προϋποθέτει</H2><UL><LI>" +
            linkB + summaryB +
            "<LI><A HREF=\"kzpage-6-410010-0.htm\">Αέρια</A> <SPAN "
            "CLASS=\"summary\">S</SPAN></LI></UL></DIV>" +
            "<NAV CLASS=\"sequence\" ARIA-LABEL=\"Προηγούμενο και επόμενο\"><A CLASS=\"previous\" "
            "HREF=\"kzpage-4-400020-0.htm\"><SPAN>Προηγούμενο θέμα</SPAN> Βαφές</A>");
    EXPECT_EQ(navigationOf(content_, "40\\0020"),
              "<NAV CLASS=\"related\" ARIA-LABEL=\"Σχετικές σελίδες\"><DIV><H2>Συνέχισε με</H2><UL><LI>" +
                  linkA + summaryA +
                  "</UL></DIV><DIV><H2>Δες επίσης</H2><UL><LI><A "
                  "HREF=\"kzpage-6-410010-10001.htm\">Υδρογόνο</A></LI></UL></DIV>"
                  "<NAV CLASS=\"sequence\" ARIA-LABEL=\"Προηγούμενο και επόμενο\"><A CLASS=\"next\" "
                  "HREF=\"kzpage-4-400010-0.htm\"><SPAN>Επόμενο θέμα</SPAN> Άλατα</A>");
}

TEST_F(PageLists, TitleOfSeveralPagesIsAmbiguous) {
    for (const char* file : {"pages/concept/450010.md", "pages/concept/450020.md"})
        content_.write(file, "title: Μάζα\nsummary: S\n---\n");
    content_.write("pages/uses/40001.md", "τίτλος: Αλάτι\nθέμα: Άλατα\nδες: Νερό; μάζα\n---\n");
    EXPECT_FALSE(content_.compile());
    EXPECT_EQ(content_.messages,
              std::vector<std::string>{
                  "pages/uses/40001.md:3:12: several pages are called 'μάζα'; write the number"});
}

TEST_F(PageLists, GoByChapterAndByTime) {
    content_.write("pages/uses/400000.md",
                   "τίτλος: Πράξη\n---\n{{περιεχόμενα}}\n\n{{τάξη β΄ γυμνασίου}}\n"
                   "{{χρονολόγιο}}\n");
    const std::string navigation = navigationOf(content_, "40\\0000");
    EXPECT_NE(navigation.find("<UL><LI><SPAN CLASS=\"chapter\">9.1</SPAN> " + linkA + summaryA +
                              "<LI><SPAN CLASS=\"chapter\">10.2</SPAN> " + linkB + summaryB + "</UL>"),
              std::string::npos)
        << navigation;
    EXPECT_NE(navigation.find("<OL><LI><SPAN CLASS=\"year\">460&nbsp;π.Χ.</SPAN> " + linkA + summaryA +
                              "<LI><SPAN CLASS=\"year\">περ.&nbsp;1743</SPAN> "),
              std::string::npos)
        << navigation;
    EXPECT_EQ(navigation.find("<H2>"), std::string::npos) << "the author has placed the list of topics";
}

TEST_F(PageLists, TimeLineSaysTheYearOfAnEventOnce) {
    content_.write("pages/uses/400030.md", "τίτλος: 1774: Οξυγόνο\nπερίληψη: Μ.\nέτος: 1774\n---\n");
    content_.write("pages/uses/400000.md", "τίτλος: Πράξη\n---\n{{χρονολόγιο}}\n");
    const std::string navigation = navigationOf(content_, "40\\0000");
    EXPECT_NE(navigation.find("<SPAN CLASS=\"year\">1774</SPAN> "
                              "<A HREF=\"kzpage-4-400030-0.htm\">Οξυγόνο</A>"),
              std::string::npos)
        << navigation;
}

TEST_F(PageLists, UnknownPagesAreReported) {
    content_.write("pages/uses/400020-b.md",
                   "τίτλος: Βαφές\nπερίληψη: Μ.\nπριν: Γάλα\nδες: 999\nτάξη: Δ΄\n---\n");
    EXPECT_FALSE(content_.compile());
    const std::vector<std::string> expected{
        "pages/uses/400020-b.md:3:7: no page is called 'Γάλα'",
        "pages/uses/400020-b.md:4:6: no page has the number 999",
        "pages/uses/400020-b.md:5:7: no school year: 'Δ΄'; write Β΄ or Γ΄ Γυμνασίου, Α΄, Β΄ or Γ΄ Λυκείου"};
    EXPECT_EQ(content_.messages, expected);
}

}  // namespace
