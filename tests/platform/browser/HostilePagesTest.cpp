#include <sys/stat.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTest>
#include <QUdpSocket>
#include <algorithm>
#include <string_view>

#include "platform/browser/BrowserPolicy.h"
#include "platform/qt/WindowTable.h"
#include "tests/support/browser/BrowserMachine.h"
#include "tests/support/browser/Footprint.h"

using namespace platform;

namespace {

/// What a page of the folder `hostile` attempts, what it says came of it, and what holds it. What may never
/// come of any is checked for all: see Hostile. Attempts by damaged files stand in the tests of their rooms.
struct Attempt {
    const char* what;
    const char* page;
    const char* said;  // part of the page's text; null where it says nothing
    const char* heldBy;
};

constexpr const char* onePath = "DosUrl: the path that is judged is the path that is opened";
constexpr const char* otherPlace = "RequestPolicy";
constexpr const char* realPath = "FileHandle::openBeneath";
constexpr const char* engineSwitch = "a switch of the engine";

// Lines of one page stand together; it is opened once.
constexpr Attempt attempts[] = {
    // Files of other folders.
    {"an escaped number sign", "paths.htm", "%23%2F..%2F..%2Fcset.ini: refused", onePath},
    {"an escaped question mark", "paths.htm", "%3F%2F..%2F..%2Fcset.ini: refused", onePath},
    {"an escaped backslash", "paths.htm", "..%5Ccset.ini: refused", onePath},
    {"escaped dots", "paths.htm", "%2E%2E/cset.ini: refused", onePath},
    {"dots", "paths.htm", " ../cset.ini: refused", onePath},
    {"another drive", "paths.htm", "z:/planted.txt: refused", otherPlace},
    {"a link to a file", "paths.htm", "d:/link.txt: refused", realPath},
    {"a link to a folder", "paths.htm", "d:/folder/planted.txt: refused", realPath},
    {"a pipe", "paths.htm", "d:/pipe: refused", "FileHandle opens regular files only"},
    {"a file of the host", "paths.htm", "file:///etc/hostname: refused", otherPlace},
    {"a resource of the program", "paths.htm", "qrc:/plugins/video.html: refused", otherPlace},
    {"(its own file)", "paths.htm", "own: own", "nothing: pages may"},
    // The network.
    {"pictures, frames, films and forms", "network.htm", nullptr, otherPlace},
    {"hints to connect", "network.htm", nullptr, "the engine finds no host"},
    {"beacons, sockets, event streams", "network.htm", nullptr, otherPlace},
    {"a request", "network.htm", "request: refused", otherPlace},
    {"a worker", "network.htm", nullptr, otherPlace},
    {"a worker of all pages", "network.htm", "shared worker: ReferenceError", engineSwitch},
    {"other transports", "network.htm", "web transport: ReferenceError",
     "ContentLimits, and the engine finds no host"},
    {"connections between browsers", "peers.htm", "interface: undefined undefined", "ContentLimits"},
    {"the same in a frame", "peers.htm", "frame: undefined", "ContentLimits"},
    {"the same in a frame without a document", "peers.htm", nullptr, engineSwitch},
    // Windows and commands of the program.
    {"a question", "dialogs.htm", "confirm: true", "WebPage"},
    {"a question for a text", "dialogs.htm", "prompt: null", "WebPage"},
    {"the file system", "dialogs.htm", "save file: undefined", engineSwitch},
    {"to choose a file, a colour, a printer", "dialogs.htm", nullptr, "WebPage, WebView"},
    {"a download, the whole screen", "dialogs.htm", nullptr, "settings of the profile"},
    {"to stay", "stay.htm", "", "WebPage answers that the page may be left"},
    {"the enlarged view, by itself", "enlarge.htm", nullptr, "UserPress"},
    {"a tip with a picture", "tip.htm", nullptr, "WebView shows tips as plain text"},
    // Time and room.
    {"a script without end", "endless.htm", nullptr, "PageArrival ends the process"},
    {"alerts without end", "endless-alerts.htm", nullptr, "PageArrival ends the process"},
    {"megabytes of messages", "console.htm", nullptr, "WebPage logs so many only"},
    // What lasts.
    {"to copy", "clipboard.htm", "command: false false", "ContentLimits"},
    {"the interface to the clipboard", "clipboard.htm", "interface: undefined", "ContentLimits"},
    {"to copy in frames, and with their command", "clipboard.htm", nullptr, "ClipboardGuard"},
    {"to copy when a frame is clicked", "clipboard-frame.htm", nullptr, "ClipboardGuard"},
    {"storage", "storage.htm", "storage: none", "settings of the profile"},
    {"cookies", "storage.htm", "cookie: none", "settings of the profile"},
};

/// Megabytes that the engine's stores may take on the way through the table: some 40 in most runs.
#ifdef __SANITIZE_ADDRESS__
constexpr int roomToGrow = 1000;  // the sanitizer keeps what was freed for a while
#else
constexpr int roomToGrow = 100;
#endif

/// Whether the page says anything; one that does not answer any more is not asked.
bool saysAnything(std::string_view page) {
    return std::ranges::any_of(attempts, [page](const Attempt& one) { return one.page == page && one.said; });
}

/// A machine with planted files, whose pages are prepared in C:\Kalyxo\cache from the data folder D:.
class Hostile : public BrowserMachine {
  protected:
    Hostile() {
        BrowserPolicy::instance().setAllowedFolders({"C:\\Kalyxo\\cache\\", "D:\\"});
        setContentFolder("D:\\");
        EXPECT_TRUE(tcp_.listen(QHostAddress::LocalHost));
        EXPECT_TRUE(udp_.bind(QHostAddress::LocalHost));
        write("C:\\Kalyxo\\cset.ini", "PLANTED");
        write("C:\\Kalyxo\\cache\\own.txt", "own");
        const auto planted = writeBytes("C:\\planted\\planted.txt", "PLANTED");
        const auto data = writeBytes("D:\\own.txt", "own").parent_path();
        std::filesystem::create_symlink(planted, data / "link.txt");
        std::filesystem::create_symlink(planted.parent_path(), data / "folder");
        EXPECT_EQ(::mkfifo((data / "pipe").c_str(), 0600), 0);
        write("C:\\Kalyxo\\cache\\own.mol", "\n\n\n  1  0\n    0.0000    0.0000    0.0000 N\n");
        write("C:\\Kalyxo\\cache\\next.htm", "<TITLE>next</TITLE>");
        for (const QFileInfo& file : QDir(QStringLiteral(HOSTILE)).entryInfoList(QDir::Files)) copyPage(file);
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    }

    void copyPage(const QFileInfo& file) {
        QFile page(file.filePath());
        ASSERT_TRUE(page.open(QIODevice::ReadOnly));
        QByteArray text = page.readAll();
        text.replace("@TCP@", "127.0.0.1:" + QByteArray::number(tcp_.serverPort()));
        text.replace("@UDP@", "127.0.0.1:" + QByteArray::number(udp_.localPort()));
        writeBytes("C:\\Kalyxo\\cache\\" + file.fileName().toStdString(), text.toStdString());
    }

    void attempt(const std::string& page) {
        navigate("C:\\Kalyxo\\cache\\" + page);
        ASSERT_TRUE(runUntil([&] { return title() == "done" || title() == "click"; })) << title();
        if (title() == "click") {
            // Before its first picture a page may lose a click.
            EXPECT_TRUE(runUntil([&] {
                QTest::mouseClick(input(), Qt::LeftButton, {}, {300, 300});
                run(100);
                return title() == "done";
            }));
        }
        QTest::mouseMove(input(), {310, 300});
        run(300);
    }

    void expectNothingCameOfIt() {
        EXPECT_FALSE(tcp_.hasPendingConnections());
        EXPECT_FALSE(udp_.hasPendingDatagrams());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        for (const QWidget* one : QApplication::topLevelWidgets()) {
            EXPECT_TRUE(one == &window || !one->isVisible()) << one->metaObject()->className();
        }
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
        EXPECT_FALSE(host().component().widget().toolTip().contains(QLatin1StringView("<img")));
        EXPECT_EQ(asked.size(), 1U) << "the program was asked about a page's own doing";
        asked.clear();
    }

    void expectTheNextPageComes() {
        navigate("C:\\Kalyxo\\cache\\next.htm");
        EXPECT_TRUE(runUntil([&] { return title() == "next" && !host().component().busy(); })) << title();
        asked.clear();
    }

    /// Opens a page, checks that nothing came of it and that the next page comes; what the page said.
    std::string visit(const std::string& page) {
        attempt(page);
        const std::string said = saysAnything(page) ? text() : std::string();
        expectNothingCameOfIt();
        expectTheNextPageComes();
        return said;
    }

    QTcpServer tcp_;
    QUdpSocket udp_;
};

TEST_F(Hostile, PagesReadNothingSendNothingAndTakeNothingAway) {
    expectTheNextPageComes();
    const Footprint before = footprintNow();
    std::string_view shown;
    std::string told;
    for (const auto& [what, page, said, heldBy] : attempts) {
        SCOPED_TRACE(std::string(page) + ": " + what + ", held by: " + heldBy);
        if (page != shown) told = visit(page);
        shown = page;
        if (said) {
            EXPECT_NE(told.find(said), std::string::npos) << told;
        }
    }
    run(1000);
    const Footprint after = footprintNow();
    EXPECT_EQ(after.processes, before.processes);
    EXPECT_LT(after.megabytes, before.megabytes + roomToGrow);
}

TEST_F(Hostile, PictureOfAPluginIsNoneThatAPageMakesUp) {
    attempt("picture.htm");
    page().updatePluginWindows();
    int plugins = 0;
    for (const HWND one : WindowTable::instance().all()) {
        if (WindowTable::instance().find(one)->className != "Plugin") continue;
        ++plugins;
        const std::string picture = page().pluginPicture(one);
        EXPECT_TRUE(picture.empty() || picture.starts_with("\x89PNG"));
    }
    EXPECT_EQ(plugins, 1);
}

TEST_F(Hostile, PageIsClosedWhateverItDoes) {
    for (const char* page : {"endless.htm", "endless-alerts.htm", "stay.htm"}) {
        SCOPED_TRACE(page);
        attempt(page);
        closeBrowser();
        run(300);
    }
}

}  // namespace
