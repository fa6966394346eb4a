#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QTest>

#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

/// How many processes of this name the test has started that are still there.
int children(const QByteArray& name) {
    const QByteArray inBrackets = "(" + name + ")";
    int found = 0;
    for (const QString& entry : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")})) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(entry));
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QByteArray line = file.readAll();
        if (!line.contains(inBrackets)) continue;
        const QList<QByteArray> fields = line.sliced(line.lastIndexOf(')') + 2).split(' ');
        if (fields.value(1).toInt() == ::getpid()) ++found;
    }
    return found;
}

class ConvertedVideo : public BrowserMachine {
  protected:
    void openFilm(const std::string& film, const std::string& attributes) {
        copyFile(MADE_FILMS "/" + film, "D:\\" + film);
        embed("D:\\" + film, attributes);
    }
    void embed(const std::string& file, const std::string& attributes) {
        write("D:\\a.htm", "<BODY STYLE=\"margin:0\"><EMBED SRC=\"" + file + "\" WIDTH=320 HEIGHT=258 " +
                               attributes + ">");
        open("D:\\a.htm");
    }
    /// The time that the strip tells, without that of the whole film.
    std::string time() { return text().substr(0, 4); }
    bool showsFilm() {
        return count(CRect::at(0, 0, 160, 240), QColor(0x20, 0x50, 0xe0)) > 30000 &&
               count(CRect::at(160, 0, 160, 240), QColor(0xe0, 0x30, 0x20)) > 30000;
    }
};

TEST_F(ConvertedVideo, PlaysOldKindsOfFile) {
    // Of the last the engine reads the sound, and gives no error.
    for (const char* film : {"cinepak.avi", "gaps.avi", "quiet.mov", "mpeg1.mpg", "part2.mp4"}) {
        openFilm(film, "AUTOPLAY=TRUE");
        EXPECT_TRUE(runUntil([&] { return time() == "0:01"; })) << film << ": " << text();
        EXPECT_TRUE(showsFilm()) << film;
    }
}

TEST_F(ConvertedVideo, TakesOverWhereTheEngineStops) {
    QFile whole(QStringLiteral(MADE_FILMS "/keys.webm"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    QByteArray bytes = whole.readAll();
    // Each key frame begins so; this is at 0:03.
    qsizetype third = -1;
    for (int i = 0; i < 3; ++i) third = bytes.indexOf("\x9d\x01\x2a", third + 1);
    ASSERT_GT(third, 0);
    bytes[third] = 0;
    writeBytes("D:\\spoilt.webm", bytes.toStdString());
    embed("D:\\spoilt.webm", "AUTOPLAY=TRUE");
    EXPECT_TRUE(runUntil([&] { return time() == "0:01"; })) << text();
    EXPECT_TRUE(runUntil([&] { return time() == "0:00" || time() == "0:05"; })) << text();
    EXPECT_EQ(time(), "0:05");
    EXPECT_TRUE(runUntil([&] { return showsFilm(); }));
}

TEST_F(ConvertedVideo, WaitsGoesOnFromAnyPlaceAndEnds) {
    openFilm("cinepak.avi", "");
    EXPECT_TRUE(runUntil([&] { return showsFilm(); })) << "the first picture";
    EXPECT_EQ(time(), "0:00");
    // The slider, four fifths along.
    QTest::mouseClick(input(), Qt::LeftButton, {}, {185, 249});
    EXPECT_TRUE(runUntil([&] { return time() >= "0:03"; })) << text();
    EXPECT_TRUE(showsFilm());
    QTest::mouseClick(input(), Qt::LeftButton, {}, {13, 249});
    EXPECT_TRUE(runUntil([&] { return time() == "0:06"; })) << "it plays to its end: " << text();
}

// Each request would otherwise have a program of its own at once.
TEST_F(ConvertedVideo, RunsFewProgramsAtOnce) {
    copyFile(MADE_FILMS "/cinepak.avi", "D:\\x.avi");
    write("D:\\a.htm",
          "<SCRIPT>let ended = 0; for (let n = 0; n < 60; ++n) { const one = new XMLHttpRequest(); "
          "one.onloadend = "
          "() => { document.title = ++ended; }; one.open('GET', 'd:/x.avi?describe&n=' + n); one.send(); "
          "}</SCRIPT>");
    navigate("D:\\a.htm");
    int most = 0;
    EXPECT_TRUE(runUntil([&] {
        // Looking for processes takes long under the sanitizers; most of the time belongs to what is tried.
        run(50);
        most = std::max(most, children("ffprobe"));
        return title() == "60";
    })) << "requests that wait and those that find too many waiting end too: "
        << title();
    EXPECT_GT(most, 1);
    EXPECT_LE(most, 4);
}

TEST_F(ConvertedVideo, DoesNotDecodePicturesOfAnySize) {
    openFilm("huge.avi", "AUTOPLAY=TRUE");
    EXPECT_TRUE(runUntil([&] { return text() == "Το βίντεο δεν μπορεί να προβληθεί."; })) << text();
}

TEST_F(ConvertedVideo, LeavesNothingBehind) {
    const QStringList before = QDir::temp().entryList();
    openFilm("mpeg1.mpg", "AUTOPLAY=TRUE");
    EXPECT_TRUE(runUntil([&] { return time() >= "0:01" && text() <= "0:06"; }));
    open("about:blank");
    EXPECT_TRUE(runUntil([] { return children("ffmpeg") + children("ffprobe") == 0; }));
    for (const QString& name : QDir::temp().entryList()) {
        EXPECT_TRUE(before.contains(name) || !name.contains(u"ffmpeg")) << name.toStdString();
    }
}

}  // namespace
