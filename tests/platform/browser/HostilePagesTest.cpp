#include <sys/stat.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTest>
#include <QUdpSocket>

#include "platform/browser/BrowserPolicy.h"
#include "platform/qt/WindowTable.h"
#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

/// What each page of the folder `hostile` attempts, and what it says came of it. What may never come of any
/// is checked for all: see Hostile.
struct Attempt {
    const char* page;
    const char* said;  // text of the page; null where it is of no account
    const char* heldBy;
};

constexpr Attempt attempts[] = {
    {"paths.htm",
     "%23%2F..%2F..%2Fcset.ini: refused %3F%2F..%2F..%2Fcset.ini: refused ..%5Ccset.ini: refused "
     "%2E%2E/cset.ini: refused ../cset.ini: refused z:/planted.txt: refused d:/link.txt: refused "
     "d:/folder/planted.txt: refused d:/pipe: refused "
     "file:///etc/hostname: refused "
     "qrc:/plugins/video.html: refused own: own",
     "RequestPolicy, and FileHandle opens what lies in the data folder"},
    {"network.htm", nullptr, "RequestPolicy, and the engine finds no host"},
    {"peers.htm", "interface: undefined undefined frame: undefined",
     "ContentLimits and a switch of the engine"},
    {"dialogs.htm", "confirm: true prompt: null save file: undefined", "WebPage and WebView"},
    {"stay.htm", "", "WebPage answers that the page may be left"},
    {"endless.htm", nullptr, "PageArrival ends the process"},
    {"endless-alerts.htm", nullptr, "PageArrival ends the process"},
    {"console.htm", nullptr, "WebPage logs so many messages only"},
    {"clipboard.htm", "PLANTED command: false false interface: undefined", "ContentLimits, ClipboardGuard"},
    {"clipboard-frame.htm", nullptr, "ClipboardGuard"},
    {"enlarge.htm", nullptr, "the program is told of what follows a press only"},
    {"tip.htm", nullptr, "WebView shows tips as plain text"},
    {"storage.htm", "storage: none cookie: none", "settings of the profile"},
};

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

    QTcpServer tcp_;
    QUdpSocket udp_;
};

TEST_F(Hostile, PagesReadNothingSendNothingAndTakeNothingAway) {
    for (const auto& [page, said, heldBy] : attempts) {
        SCOPED_TRACE(std::string(page) + ", held by: " + heldBy);
        attempt(page);
        if (said) {
            EXPECT_EQ(text(), said);
        }
        expectNothingCameOfIt();
        expectTheNextPageComes();
    }
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
