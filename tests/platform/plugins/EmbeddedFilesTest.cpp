#include <QTest>

#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

const std::string water =
    "Water\n\n\n  3  2  0  0  0  0  0  0  0  0999 V2000\n"
    "    0.0000    0.0000    0.0000 O   0  0\n"
    "    0.7572    0.5858    0.0000 H   0  0\n"
    "   -0.7572    0.5858    0.0000 H   0  0\n"
    "  1  2  1  0\n  1  3  1  0\nM  END\n";

/// A page of one embedded file, at the page's top left corner.
std::string embedding(const std::string& attributes) {
    return "<BODY STYLE=\"margin:0\"><EMBED SRC=" + attributes + "></BODY>";
}

constexpr CRect whole{0, 0, 640, 480};

/// The colours of oxygen and nitrogen, in any shade.
bool isRed(QColor colour) { return colour.red() > 80 && colour.red() > 3 * colour.green(); }

TEST_F(BrowserMachine, ShowsTheMoleculeThatIsInTheFileNow) {
    write("C:\\cache\\1.htm", embedding("chime.mol WIDTH=340 HEIGHT=290\nSPIN=true"));
    write("C:\\cache\\2.htm", embedding("chime.mol WIDTH=340 HEIGHT=290"));
    write("C:\\cache\\chime.mol", water);
    open("C:\\cache\\1.htm");
    EXPECT_TRUE(runUntil([&] { return count(whole, isRed) > 3000; }));
    const QImage before = picture();
    EXPECT_NE(picture(), before) << "it spins";
    QEvent behind(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(input()->parentWidget(), &behind);
    run(200);
    const QImage rest = picture();
    run(200);
    EXPECT_EQ(picture(), rest) << "it rests while another window is in front";
    write("C:\\cache\\chime.mol", "\n\n\n  1  0\n    0.0000    0.0000    0.0000 N\n");
    open("C:\\cache\\2.htm");
    EXPECT_TRUE(runUntil([&] { return count(whole, isBlue) > 3000; }));
    EXPECT_EQ(count(whole, isRed), 0);
}

TEST_F(BrowserMachine, TurnsAMoleculeWithTheMouse) {
    write("D:\\x.mol", water);
    write("D:\\a.htm", embedding("x.mol WIDTH=640 HEIGHT=480"));
    open("D:\\a.htm");
    EXPECT_TRUE(runUntil([&] { return count(whole, isRed) > 6000; }));
    const QImage before = picture();
    QTest::mousePress(input(), Qt::LeftButton, {}, {300, 200});
    QTest::mouseMove(input(), {320, 220}, 50);
    QTest::mouseMove(input(), {400, 260}, 50);
    QTest::mouseRelease(input(), Qt::LeftButton, {}, {400, 260}, 50);
    const QImage turned = picture();
    EXPECT_NE(turned, before);
    EXPECT_EQ(picture(), turned) << "it stays where it was left";
    doubleClick({400, 260});
    EXPECT_TRUE(runUntil([&] { return picture() == before; })) << "a double click resets it";
}

TEST_F(BrowserMachine, TakesOverTheLookOfAnotherViewOfTheSameMolecule) {
    write("D:\\x.mol", water);
    write("D:\\a.htm",
          embedding("x.mol WIDTH=300 HEIGHT=300") +
              "<BUTTON STYLE=\"position:absolute;left:0;top:320px\" ONCLICK=\"const e="
              "document.querySelector('embed').cloneNode();e.removeAttribute('data-plugin');"
              "e.setAttribute('src','x.mol');e.removeAttribute('type');document.body.append(e)\">"
              "Ακόμη ένα</BUTTON>");
    open("D:\\a.htm");
    const CRect left{0, 0, 300, 300};
    EXPECT_TRUE(runUntil([&] { return count(left, isRed) > 3000; }));
    QTest::mousePress(input(), Qt::LeftButton, {}, {150, 100});
    QTest::mouseMove(input(), {220, 150}, 50);
    QTest::mouseRelease(input(), Qt::LeftButton, {}, {220, 150}, 50);
    QTest::mouseClick(input(), Qt::LeftButton, {}, {20, 330});
    const auto half = [&](int x) { return picture().copy(x, 0, 300, 300); };
    EXPECT_TRUE(runUntil([&] { return half(300) == half(0); }));
}

TEST_F(BrowserMachine, PlaysAVideoAboveItsStrip) {
    copyFile(FILM, "D:\\video\\x.webm");
    write("D:\\a.htm", embedding("\"D:\\video\\x.webm\" WIDTH=320 HEIGHT=258"));
    write("D:\\b.htm", embedding("\"D:\\video\\x.webm\" WIDTH=320 HEIGHT=258 AUTOPLAY=TRUE SCALE=2"));
    const QColor blue(0x20, 0x50, 0xe0);
    const QColor red(0xe0, 0x30, 0x20);
    const QColor strip(0x26, 0x32, 0x3f);
    open("D:\\a.htm");
    EXPECT_TRUE(runUntil([&] { return count(CRect::at(0, 0, 160, 240), blue) > 36000; }))
        << "the first picture";
    EXPECT_GT(count(CRect::at(160, 0, 160, 240), red), 36000);
    EXPECT_GT(count(CRect::at(0, 240, 320, 18), strip), 2000);
    EXPECT_EQ(count(CRect::at(0, 0, 320, 240), strip), 0);
    EXPECT_EQ(text(), "0:00 / 0:01");
    run(1500);
    EXPECT_EQ(text(), "0:00 / 0:01") << "it waits to be played";
    QTest::mouseClick(input(), Qt::LeftButton, {}, {13, 249});
    EXPECT_TRUE(runUntil([&] { return text() == "0:01 / 0:01"; })) << "the strip's first button plays it";
    open("D:\\b.htm");
    EXPECT_TRUE(runUntil([&] { return text() == "0:01 / 0:01"; })) << "it plays by itself";
}

TEST_F(BrowserMachine, SaysThatAnEmbeddedFileIsMissingOrNoVideo) {
    write("D:\\x.webm", "not a video");
    write("D:\\empty.avi", "");
    write("D:\\cut.avi", std::string("RIFF\0\0\0\0AVI ", 12));
    write("D:\\list.avi", "#EXTM3U\n#EXTINF:10,\n" MADE_FILMS "/mpeg1.mpg\n#EXT-X-ENDLIST\n");
    const std::vector<std::pair<std::string, std::string>> wrong = {
        {"nix.mol", "Το αρχείο του μορίου δεν βρέθηκε."},
        {"nix.webm", "Το βίντεο δεν βρέθηκε."},
        {"nix.avi", "Το βίντεο δεν βρέθηκε."},
        {"x.webm", "Το βίντεο δεν μπορεί να προβληθεί."},
        {"empty.avi", "Το βίντεο δεν μπορεί να προβληθεί."},
        {"cut.avi", "Το βίντεο δεν μπορεί να προβληθεί."},
        {"list.avi", "Το βίντεο δεν μπορεί να προβληθεί."},
    };
    for (const auto& [file, message] : wrong) {
        write("D:\\a.htm", embedding(file + " WIDTH=340 HEIGHT=290"));
        open("D:\\a.htm");
        EXPECT_TRUE(runUntil([&, &told = message] { return text() == told; })) << file << ": " << text();
    }
}

}  // namespace
