#include "platform/browser/BrowserPolicy.h"
#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

using Addresses = std::vector<std::string>;

class BeforeNavigate : public BrowserMachine {
  protected:
    BeforeNavigate() {
        write("C:\\Kalyxo\\cache\\1.htm",
              "<TITLE>1</TITLE><A HREF=\"pjqbhg12345678.htm\"><U>μόριο</U></A> <A "
              "HREF=\"D:\\a.htm\">Μεγέθυνση</A> "
              "<A HREF=\"http://example.org/\">δίκτυο</A> <A HREF=\"#top\">πάνω</A> "
              "<A HREF=\"mailto:a@example.org\">γράμμα</A>");
        write("D:\\a.htm", "<TITLE>a</TITLE>");
    }
};

TEST_F(BeforeNavigate, TellsTheResolvedAddressInDosForm) {
    open("c:/Kalyxo/cache/1.htm", 14);
    refuses = [](const std::string&) { return true; };
    asked.clear();
    for (const char* link : {"μόριο", "Μεγέθυνση", "δίκτυο", "γράμμα"}) EXPECT_TRUE(click(link)) << link;
    EXPECT_EQ(asked, (Addresses{"C:\\Kalyxo\\cache\\pjqbhg12345678.htm", "D:\\a.htm", "http://example.org/",
                                "mailto:a@example.org"}));
    EXPECT_EQ(takeRefused(), asked);
    EXPECT_EQ(url(), "C:\\Kalyxo\\cache\\1.htm");
    EXPECT_EQ(title(), "1");
    EXPECT_FALSE(host().component().busy());
}

TEST_F(BeforeNavigate, GoesToPlacesWithinThePageUnasked) {
    open("C:\\Kalyxo\\cache\\1.htm");
    ASSERT_TRUE(page().clickLink(cp1253("πάνω")));
    EXPECT_TRUE(runUntil([&] { return url() == "C:\\Kalyxo\\cache\\1.htm#top"; }));
    EXPECT_EQ(asked.size(), 1U);
}

TEST_F(BeforeNavigate, LetsTheHandlerCloseTheBrowser) {
    open("C:\\Kalyxo\\cache\\1.htm");
    refuses = [&](const std::string&) {
        closeBrowser();
        return false;
    };
    ASSERT_TRUE(page().clickLink(cp1253("μόριο")));
    ASSERT_TRUE(runUntil([&] { return asked.size() == 2; }));
    run(200);
    EXPECT_TRUE(window.findChildren<QWidget*>().isEmpty());
}

using RequestsOfPages = BeforeNavigate;

TEST_F(RequestsOfPages, LeavesRefusedAddressesToThePolicy) {
    open("C:\\Kalyxo\\cache\\1.htm");
    ASSERT_TRUE(click("δίκτυο"));
    EXPECT_EQ(takeRefused(), Addresses{"http://example.org/"});
    EXPECT_EQ(title(), "1");
}

TEST_F(RequestsOfPages, KeepsAPageFromFilesOutsideItsFolders) {
    writePicture("D:\\data\\x.png", 20, 20, Qt::red);
    writePicture("D:\\secret\\x.png", 20, 20, Qt::red);
    write("D:\\secret\\b.htm", "<TITLE>b</TITLE>secret");
    write("D:\\data\\a.htm",
          "<TITLE>a</TITLE><IMG SRC=\"x.png\"><IMG SRC=\"D:\\secret\\x.png\"><IMG SRC=\"..\\secret\\x.png\">"
          "<IFRAME SRC=\"D:\\secret\\b.htm\" FRAMEBORDER=0></IFRAME><A HREF=\"D:\\secret\\b.htm\">b</A>");
    BrowserPolicy::instance().setAllowedFolders({"D:\\data"});
    open("D:\\data\\a.htm");
    EXPECT_EQ(count({0, 0, 640, 480}, Qt::red), 400);
    EXPECT_EQ(text(), "b");
    ASSERT_TRUE(click("b"));
    EXPECT_EQ(url(), "D:\\data\\a.htm");
    open("D:\\secret\\b.htm");
    EXPECT_EQ(url(), "D:\\data\\a.htm");
}

}  // namespace
