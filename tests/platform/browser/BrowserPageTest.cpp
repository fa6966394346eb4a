#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <csignal>
#include <filesystem>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/WebBrowserComponent.h"
#include "platform/printing/PrintFile.h"
#include "tests/support/TestFolder.h"
#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

const std::string page1253 =
    "<HTML><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1253\">";

TEST_F(BrowserMachine, ShowsAPreparedPageWithItsPicturesAndStyle) {
    write("D:\\style\\kalyxo.css", "H1 { color: #0000ff; } P { margin-left: 300px; }");
    writePicture("D:\\images\\x.gif", 60, 40, Qt::red);
    write("C:\\Kalyxo\\cache\\1.htm",
          page1253 +
              "<TITLE>Δομές</TITLE><LINK REL=\"stylesheet\" HREF=\"D:\\style\\kalyxo.css\"></HEAD>"
              "<BODY BGCOLOR=\"#FFFFFF\"><H1>Χημικοί δεσμοί</H1><P><IMG SRC=\"D:\\images\\X.GIF\"></P>"
              "<A HREF=\"2.htm\">επόμενη</A> <A HREF=\"D:\\Αρχείο 1.htm\">αρχείο</A></BODY></HTML>");
    // Neither of these says in which character set it is.
    write("C:\\Kalyxo\\cache\\2.htm", "<TITLE>Άλλη</TITLE><P>Ά ά Ϊ ΐ</P><A HREF=\"1.htm\">πίσω</A>");
    write("D:\\Αρχείο 1.htm", "<TITLE>Αρχείο</TITLE>ώς");

    open("c:/Kalyxo/cache/1.htm", 14);
    EXPECT_EQ(url(), "C:\\Kalyxo\\cache\\1.htm");
    EXPECT_EQ(title(), "Δομές");
    EXPECT_EQ(text(), "Χημικοί δεσμοί επόμενη αρχείο");
    EXPECT_EQ(count({300, 0, 640, 480}, Qt::red), 60 * 40);
    EXPECT_GT(count({0, 0, 640, 60}, Qt::blue), 100);
    EXPECT_NE(page().html().find("<h1>"), std::string::npos);

    ASSERT_TRUE(click("επόμενη"));
    EXPECT_EQ(url(), "C:\\Kalyxo\\cache\\2.htm");
    EXPECT_EQ(text(), "Ά ά Ϊ ΐ πίσω");
    ASSERT_TRUE(click("πίσω"));
    ASSERT_TRUE(click("αρχείο"));
    EXPECT_EQ(url(), "D:\\Αρχείο 1.htm");
    EXPECT_EQ(title() + ' ' + text(), "Αρχείο ώς");
}

// The redirect page, the page, its style sheet, picture and link, all by the paths of the two folders.
TEST_F(BrowserMachine, ShowsPagesWhoseFoldersHaveNamesWithAMeaningInAddresses) {
    for (const std::string folder : {"Α#1 %20", "a?b", "R&amp;D ' 100%41"}) {
        SCOPED_TRACE(folder);
        const std::string data = "D:\\" + folder + "\\";
        const std::string cache = data + "cache#\\";
        BrowserPolicy::instance().setAllowedFolders({cp1253(data), cp1253(cache)});
        write(data + "style\\a.css", "H1 { color: #0000ff; }");
        writePicture(data + "x.gif", 60, 40, Qt::red);
        write(data + "a.htm", "<TITLE>a</TITLE>α");
        write(cache + "redirect.htm", "<META HTTP-EQUIV=\"Refresh\" CONTENT=\"0; URL=" + cache + "1.htm\">");
        write(cache + "1.htm", page1253 + "<TITLE>1</TITLE><LINK REL=\"stylesheet\" HREF=\"" + data +
                                   "style\\a.css\"></HEAD><BODY><H1>Δεσμοί</H1><IMG SRC=\"" + data +
                                   "X.GIF\"><A HREF=\"" + data + "a.htm\">αρχή</A></BODY>");
        open(cache + "redirect.htm", 14);
        ASSERT_TRUE(runUntil([this] { return title() == "1"; }));
        waitForPage();
        EXPECT_EQ(url(), cache + "1.htm");
        EXPECT_GT(count({0, 0, 640, 80}, Qt::blue), 100);
        EXPECT_EQ(count({0, 0, 640, 480}, Qt::red), 60 * 40);
        ASSERT_TRUE(click("αρχή"));
        EXPECT_EQ(url() + ' ' + text(), data + "a.htm α");
    }
}

TEST_F(BrowserMachine, StartsItsEngineOnceTheWindowIsSeenOrAfterAWhile) {
    write("D:\\1.htm", "<TITLE>1</TITLE>");
    write("D:\\2.htm", "<TITLE>2</TITLE>");
    refuses = [](const std::string& address) { return address == "D:\\3.htm"; };
    for (const bool shown : {true, false}) {
        SCOPED_TRACE(shown);
        asked.clear();
        makeBrowser();
        window.setVisible(shown);
        for (const char* address : {"D:\\1.htm", "D:\\2.htm", "D:\\3.htm"}) navigate(address);
        EXPECT_EQ(asked, (std::vector<std::string>{"D:\\1.htm", "D:\\2.htm", "D:\\3.htm"}));
        EXPECT_EQ(input(), nullptr);
        EXPECT_EQ(url(), "");
        EXPECT_TRUE(host().component().busy());
        waitForPage();
        EXPECT_EQ(title(), "2");
        EXPECT_EQ(asked.size(), 3U);
        closeBrowser();
    }
}

TEST_F(BrowserMachine, GoesWhereItWasSentAlthoughItsEngineStartedMeanwhile) {
    write("D:\\1.htm", "<TITLE>1</TITLE>");
    refuses = [this](const std::string&) {
        EXPECT_TRUE(runUntil([this] { return input() != nullptr; }));
        return false;
    };
    open("D:\\1.htm");
    EXPECT_EQ(title(), "1");
}

TEST_F(BrowserMachine, SaysThatAPageIsMissing) {
    write("D:\\a.htm", "<TITLE>a</TITLE><IMG SRC=\"nix.gif\"><IFRAME SRC=\"nix.htm\"></IFRAME>");
    open("D:\\nix.htm");
    EXPECT_EQ(title(), "Η σελίδα δεν βρέθηκε");
    EXPECT_EQ(text(), "Η σελίδα δεν βρέθηκε D:\\nix.htm");
    open("Q:\\a.htm");
    EXPECT_EQ(text(), "Η σελίδα δεν βρέθηκε Q:\\a.htm");
    open("about:blank");
    EXPECT_EQ(asked.back(), "about:blank");
    EXPECT_EQ(text(), "");
    open("D:\\");
    EXPECT_EQ(title(), "Η σελίδα δεν βρέθηκε");
    open("D:\\a.htm");
    EXPECT_EQ(title(), "a");
    EXPECT_EQ(text(), "Η σελίδα δεν βρέθηκε D:\\nix.htm") << "in the page's frame";
}

TEST_F(BrowserMachine, LoadsThePageAgainOnRefresh) {
    write("D:\\a.htm", "<TITLE>one</TITLE>");
    open("D:\\a.htm");
    write("D:\\a.htm", "<TITLE>two</TITLE>");
    const std::array level = {Variant(std::int16_t{0})};
    ASSERT_TRUE(host().invoke(105, InvokeKind::method, level));
    EXPECT_TRUE(host().component().busy());
    waitForPage();
    EXPECT_EQ(title(), "two");
}

TEST_F(BrowserMachine, ShowsTheLastOfQuickNavigations) {
    for (const std::string name : {"1", "2", "3"})
        write("D:\\" + name + ".htm", "<TITLE>" + name + "</TITLE>");
    for (const int pause : {0, 5, 30}) {
        navigate("D:\\1.htm");
        run(pause);
        navigate("D:\\2.htm");
        run(pause);
        open("D:\\3.htm");
        EXPECT_EQ(title(), "3") << pause << " ms between";
        EXPECT_EQ(url(), "D:\\3.htm");
    }
}

// The engine would show the second page, but never print it.
TEST_F(BrowserMachine, ShowsAndPrintsAPageAlthoughTheProcessOfTheFormerOneEndsMeanwhile) {
    write("D:\\1.htm", "<TITLE>1</TITLE>");
    write("D:\\2.htm", "<TITLE>2</TITLE><A HREF=\"1.htm\">one</A>");
    const TestFolder root;
    MachineConfig config;
    config.printer = PrinterConfig();
    config.printer->folder = root.path();
    open("D:\\1.htm");
    const auto process = static_cast<pid_t>(window.findChild<QWebEngineView*>()->page()->renderProcessPid());
    ASSERT_EQ(::kill(process, SIGKILL), 0);
    open("D:\\2.htm");
    EXPECT_EQ(title(), "2");
    ASSERT_TRUE(click("one"));
    EXPECT_EQ(title(), "1");
    Machine printing(root.path(), config, Registry());
    setMachine(&printing);
    const auto document = host().invoke(203, InvokeKind::propertyGet, {});
    EXPECT_TRUE((*document->get<std::shared_ptr<Dispatch>>())->exec(6));
    EXPECT_TRUE(runUntil([&] { return std::filesystem::exists(root / "print-1.pdf"); }));
    closeBrowser();
    setMachine(nullptr);
}

// As Back goes to a place with which the browse selection then answers.
TEST_F(BrowserMachine, GivesTheEngineOnlyTheLastAddressOfOneStepOfTheProgram) {
    for (const std::string name : {"1", "2", "3"})
        write("D:\\" + name + ".htm", "<TITLE>" + name + "</TITLE>");
    open("D:\\1.htm");
    const QWebEnginePage& given = *window.findChild<QWebEngineView*>()->page();
    const QUrl first = given.requestedUrl();
    navigate("D:\\2.htm");
    EXPECT_EQ(given.requestedUrl(), first);
    EXPECT_TRUE(host().component().busy());
    open("D:\\3.htm");
    EXPECT_EQ(title(), "3");
}

// Modules are always read as UTF-8; other scripts do not say in which character set they are.
TEST_F(BrowserMachine, ReadsScriptsInBothCharacterSets) {
    write("D:\\old.js", "document.write('ώς ');");
    writeBytes("D:\\new.js", "document.write('ώς ');");
    writeBytes("D:\\module.js", "document.body.append('ώς');");
    write("D:\\a.htm", page1253 +
                           "<BODY><SCRIPT SRC=\"old.js\"></SCRIPT><SCRIPT SRC=\"new.js\"></SCRIPT>"
                           "<SCRIPT TYPE=\"module\" SRC=\"module.js\"></SCRIPT></BODY>");
    open("D:\\a.htm");
    EXPECT_EQ(text(), "ώς ώς ώς");
}

TEST_F(BrowserMachine, OpensNewWindowsInTheSameView) {
    write("D:\\a.htm", "<A HREF=\"b.htm\" TARGET=\"_blank\">b</A>");
    write("D:\\b.htm", "<TITLE>b</TITLE>");
    open("D:\\a.htm");
    ASSERT_TRUE(click("b"));
    EXPECT_EQ(url(), "D:\\b.htm");
    EXPECT_EQ(asked.back(), "D:\\b.htm");
}

TEST_F(BrowserMachine, GivesADocumentThatOutlivesThePage) {
    write("D:\\a.htm", "<BODY>Χημεία</BODY>");
    open("D:\\a.htm");
    const auto result = host().invoke(203, InvokeKind::propertyGet, {});
    ASSERT_TRUE(result && result->get<std::shared_ptr<Dispatch>>());
    const auto document = *result->get<std::shared_ptr<Dispatch>>();
    EXPECT_TRUE(document->exec(12));
    EXPECT_FALSE(document->exec(7));
    closeBrowser();
    EXPECT_FALSE(document->exec(12)) << "the page is gone";
}

TEST_F(BrowserMachine, TellsOfAPageThatCannotBePrinted) {
    open("D:\\a.htm");
    const TestFolder root;
    MachineConfig config;
    config.printer = PrinterConfig();
    config.printer->folder = root.write("file", "no folder");
    Machine printing(root.path(), config, Registry());
    setMachine(&printing);
    std::string told;
    setPrintListener([&](const std::string& file, bool written) { told = file + (written ? "" : " not"); });
    const auto document = host().invoke(203, InvokeKind::propertyGet, {});
    EXPECT_TRUE((*document->get<std::shared_ptr<Dispatch>>())->exec(6));
    EXPECT_TRUE(runUntil([&] { return !told.empty(); }));
    EXPECT_EQ(told, (root / "file/print-1.pdf").string() + " not");
    setPrintListener({});
    closeBrowser();
    setMachine(nullptr);
}

TEST_F(BrowserMachine, RefusesCallsThatItDoesNotKnow) {
    makeBrowser();
    const std::array text = {Variant(std::string("D:\\a.htm"))};
    EXPECT_FALSE(host().invoke(104, InvokeKind::method, text)) << "arguments missing";
    EXPECT_FALSE(host().invoke(203, InvokeKind::method, {})) << "a property, not a method";
    EXPECT_FALSE(host().invoke(999, InvokeKind::method, {}));
    EXPECT_FALSE(host().component().busy());
    EXPECT_EQ(page().url(), "");
}

}  // namespace
