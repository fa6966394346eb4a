#include <QTest>
#include <algorithm>
#include <regex>

#include "platform/qt/WindowTable.h"
#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

struct Case {
    std::string name;
    std::string content;
};

const std::string molFile =
    "HCN\n\n\n  3  2  0  0  0  0  0  0  0  0999 V2000\n"
    "    0.0000    0.0000    0.0000 C   0  0\n   -1.0700    0.0000    0.0000 H   0  0\n"
    "    1.1500    0.0000    0.0000 N   0  0\n  1  2  1  0\n  1  3  3  0\nM  END\n";

/// Hydrogen cyanide, C in the middle, in each kind of file.
const std::vector<Case> cyanide = {
    {"a.mol", molFile},
    {"b.mol",
     "HCN\n\n\n  0  0  0     0  0            999 V3000\nM  V30 BEGIN CTAB\nM  V30 COUNTS 3 2 0 0 0\n"
     "M  V30 BEGIN ATOM\nM  V30 1 C 0 0 0 0\nM  V30 2 H -1.07 0 0 0\nM  V30 3 N 1.15 0 0 0\nM  V30 END ATOM\n"
     "M  V30 BEGIN BOND\nM  V30 1 1 1 2\nM  V30 2 3 1 3\nM  V30 END BOND\nM  V30 END CTAB\nM  END\n"},
    {"c.sdf", molFile + "> <NAME>\nHCN\n\n$$$$\nnext\n"},
    {"d.xyz", "3\nHCN\nC 0 0 0\nH -1.07 0 0\n7 1.15 0 0\n"},
    {"e.pdb",
     "HEADER    HCN\nHETATM    1  C   HCN A   1       0.000   0.000   0.000  1.00  0.00           C\n"
     "HETATM    2  H   HCN A   1      -1.070   0.000   0.000  1.00  0.00\n"
     "HETATM    3  N   HCN A   1       1.150   0.000   0.000  1.00  0.00           N\nCONECT    1    2    "
     "3\nEND\n"},
    {"f.cml",
     "<?xml version=\"1.0\"?><cml xmlns=\"http://www.xml-cml.org/schema\"><molecule><atomArray>"
     "<atom id=\"a1\" elementType=\"C\" x3=\"0\" y3=\"0\" z3=\"0\"/>"
     "<atom id=\"a2\" elementType=\"H\" x3=\"-1.07\" y3=\"0\" z3=\"0\"/>"
     "<atom id=\"a3\" elementType=\"N\" x3=\"1.15\" y3=\"0\" z3=\"0\"/></atomArray>"
     "<bondArray><bond atomRefs2=\"a1 a2\" order=\"S\"/><bond atomRefs2=\"a1 a3\" order=\"3\"/></bondArray>"
     "</molecule></cml>"},
};

constexpr CRect frame{0, 0, 340, 290};

class MoleculeFiles : public BrowserMachine {
  protected:
    void show(const Case& file) {
        write("D:\\" + file.name, file.content);
        write("D:\\a.htm", "<BODY STYLE=\"margin:0\"><EMBED SRC=" + file.name + " WIDTH=340 HEIGHT=290>");
        open("D:\\a.htm");
    }
    HWND plugin() {
        page().updatePluginWindows();
        for (const HWND one : WindowTable::instance().all()) {
            if (WindowTable::instance().find(one)->className == "Plugin") return one;
        }
        return 0;
    }
    /// The middle of the blue atom in an area.
    QPoint middleOfBlue(const CRect& area) {
        const QImage shown = picture();
        QPoint sum;
        int found = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                if (!isBlue(shown.pixelColor(x, y))) continue;
                sum += QPoint(x, y);
                ++found;
            }
        }
        return found == 0 ? QPoint() : sum / found;
    }
};

TEST_F(MoleculeFiles, OfEveryKindShowTheSameMolecule) {
    show(cyanide.front());
    ASSERT_TRUE(runUntil([&] { return count(frame, isBlue) > 500; }));
    const QImage expected = picture();
    for (const Case& file : cyanide) {
        show(file);
        EXPECT_TRUE(runUntil([&] { return count(frame, isBlue) > 500; })) << file.name;
        if (file.name < "d") {
            EXPECT_EQ(picture(), expected) << file.name;
        }
        // The atom in the middle, after its name and number where it belongs, if the file tells that.
        QTest::mouseMove(input(), {160, 146});
        const std::string tip = "Άνθρακας (C), άτομο 1";
        EXPECT_TRUE(runUntil([&] { return text().starts_with(tip); })) << file.name << ": " << text();
        if (file.name == "e.pdb") {
            EXPECT_EQ(text(), tip + ", HCN 1");
        }
        QTest::mouseMove(input(), {500, 400});
    }
}

TEST_F(MoleculeFiles, ThatAreBrokenSaySo) {
    std::string atoms;
    for (int i = 0; i < 300000; ++i) atoms += "N 0 0 0\n";
    const std::vector<Case> broken = {
        {"a.mol", cyanide[1].content.substr(0, 200)},
        {"b.mol",
         "HCN\n\n\n  0  0  0     0  0            999 V3000\nM  V30 BEGIN BOND\nM  V30 1 1 1 2\nM  END\n"},
        {"c.sdf", "$$$$\n"},
        {"d.xyz", "3\nHCN\nC 0 0 0\nH -1.07 0\nN 1.15 0 0\n"},
        {"e.xyz", "1\n\nQq 0 0 0\n"},
        {"f.xyz", "-1\n\n"},
        {"crowd.xyz", "300000\n\n" + atoms},
        {"far.xyz", "2\n\nN 0 0 0\nN 1e300 0 0\n"},
        // Drawing got a number that is not finite from the sum of two such places.
        {"far.cml", std::regex_replace(cyanide[5].content, std::regex("x3=\"[^\"]*"), "x3=\"1e308")},
        {"far.mol", "\n\n\n  1  0\n    0.0000   -1e308     0.0000 N\n"},
        {"g.pdb", "HEADER    nothing\nEND\n"},
        {"h.pdb", "HETATM    1  C   HCN A   1       0.000   0.0x0   0.000  1.00  0.00           C\n"},
        {"i.cml", cyanide[5].content.substr(0, 300)},
        {"j.cml", "<html/>"},
        {"k.mol", ""},
        {"l.mol", "not a molecule"},
        {"m.mol", "\n\n\n999999  0  0  0  0  0  0  0  0  0999 V2000\n"},
        {"n.mol", cyanide[0].content.substr(0, 150)},
        {"o.mol", "\n\n\n  1  1\n    0.0000    0.0000    0.0000 O\n  1  2  1\n"},
        {"p.mol", "\n\n\n  1  0\n    x         0.0000    0.0000 O\n"},
    };
    for (const Case& file : broken) {
        show(file);
        const std::string message = "Το αρχείο του μορίου δεν μπορεί να διαβαστεί.";
        EXPECT_TRUE(runUntil([&] { return text() == message; })) << file.name << ": " << text();
    }
    EXPECT_EQ(page().pluginPicture(plugin()), "") << "a message is no picture";
}

// Drawing ended at an atom whose element has the name of something that every JavaScript object has.
TEST_F(MoleculeFiles, OfElementsThatAreNoneAreDrawn) {
    for (const char* element : {"constructor", "__proto__"}) {
        show({"a.mol", "\n\n\n  0  0  0     0  0            999 V3000\nM  V30 BEGIN ATOM\nM  V30 1 " +
                           std::string(element) +
                           " 0 0 -3 0\nM  V30 2 N 0 0 0 0\nM  V30 END ATOM\nM  END\n"});
        EXPECT_TRUE(runUntil([&] { return count(frame, isBlue) > 500; })) << element;
    }
}

// Bonds were looked for between all of them, which took minutes.
TEST_F(MoleculeFiles, OfManyAtomsAtOnePlaceAreShownSoon) {
    std::string atoms = "80000\n\n";
    for (int i = 0; i < 80000; ++i) atoms += "N 0 0 0\n";
    show({"a.xyz", atoms});
    const auto isShown = [&] { return count(frame, isBlue) > 500; };
    EXPECT_TRUE(runUntil(isShown) || runUntil(isShown) || runUntil(isShown));
}

TEST_F(MoleculeFiles, AreEnlargedWithTheWheel) {
    show(cyanide.front());
    ASSERT_TRUE(runUntil([&] { return count(frame, isBlue) > 500; }));
    const int before = count(frame, isBlue);
    const QPointF point(160, 140);
    QWheelEvent wheel(point, input()->mapToGlobal(point), {}, {0, 240}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(input(), &wheel);
    EXPECT_TRUE(runUntil([&] { return count(frame, isBlue) > before * 5 / 4; }));
}

// An ion, in each way in which a file tells charges; what they add up to stands at the upper right of
// brackets around it.
TEST_F(MoleculeFiles, OfIonsTellTheirCharge) {
    const std::string head = "\n\n\n  2  1\n";
    const std::string atom = "    0.0000    0.0000    0.0000 N   0  ";
    const std::string other = "    1.2000    0.0000    0.0000 C   0  ";
    const std::string bond = "  1  2  3\n";
    const std::string xml =
        R"(<molecule><atom id="a" elementType="N" x3="0" y3="0" z3="0" formalCharge="-1"/></molecule>)";
    struct Ion {
        Case file;
        bool isCharged;
    };
    const std::vector<Ion> ions = {
        {{"a.mol", head + atom + "0\n" + other + "0\n" + bond + "M  CHG  1   2  -1\nM  END\n"}, true},
        {{"b.mol", head + atom + "0\n" + other + "0\n" + bond + "M  CHG  2   1   1   2  -1\nM  END\n"},
         false},
        {{"c.mol", head + atom + "0\n" + other + "5\n" + bond + "M  END\n"}, true},
        {{"d.mol", head + atom + "0\n" + other + "5\n" + bond + "M  CHG  2   1   1   2  -1\nM  END\n"},
         false},
        {{"e.mol", head + atom + "0\n" + other + "0\n" + bond + "M  CHG  1   2   x\nM  END\n"}, false},
        {{"f.sdf", head + atom + "0\n" + other + "0\n" + bond + "M  END\n$$$$\nM  CHG  1   2  -1\n"}, false},
        {{"g.mol",
          "\n\n\n  0  0  0     0  0            999 V3000\nM  V30 BEGIN ATOM\nM  V30 1 N 0 0 0 0 CHG=1\nM  "
          "V30 END ATOM\nM  END\n"},
         true},
        {{"h.pdb", "HETATM    1  N   NH4 A   1       0.000   0.000   0.000  1.00  0.00           N1+\n"},
         true},
        {{"i.cml", xml}, true}};
    const QColor ink(0xe8, 0xee, 0xf5);
    const CRect right = CRect::at(240, 0, 100, 240);
    for (const auto& [file, isCharged] : ions) {
        show(file);
        ASSERT_TRUE(runUntil([&] { return count(frame, isBlue) > 500; })) << file.name;
        run(100);
        EXPECT_EQ(count(right, ink) > 100, isCharged) << file.name << ' ' << count(right, ink);
    }
}

// Two viewers of the same molecule talk on a channel that any page can send on.
TEST_F(MoleculeFiles, AreNotSpoiltByWhatAPageSaysOnTheirChannel) {
    for (const char* view :
         {"{state: {}, turn: [[1e9, 0, 0], [0, 1, 0], [0, 0, 1]], zoom: 1}",
          "{state: {}, turn: [[1, 0, 0], [0, 1, 0], [0, 0, 1]], zoom: NaN}",
          "{state: {}, turn: [[1, 0, 0], [0, 1, 0], [0, 0, 1]], zoom: 1e9}",
          "{state: {}, turn: 'x', zoom: 1}", "{state: {}}", "{state: 1, turn: [], zoom: 1}", "null",
          "{state: {style: 'none', labels: 'x'}, turn: [[1, 0, 0], [0, 1, 0], [0, 0, 1]], zoom: 1}"}) {
        write("D:\\a.mol", molFile);
        write("D:\\a.htm",
              "<BODY STYLE=\"margin:0\"><SCRIPT>const channel = new BroadcastChannel('molecule 3 C H N');"
              "channel.onmessage = () => { channel.postMessage(" +
                  std::string(view) +
                  "); "
                  "document.title = 'said'; };</SCRIPT><EMBED SRC=a.mol WIDTH=340 HEIGHT=290>");
        open("D:\\a.htm");
        ASSERT_TRUE(runUntil([&] { return title() == "said"; })) << view;
        run(100);
        EXPECT_GT(count(frame, isBlue), 500) << view;
        EXPECT_LT(count(frame, isBlue), 10000) << view;
    }
}

// What the controller's buttons say, here said by the page itself.
TEST_F(MoleculeFiles, AreLabelledAndMeasured) {
    write("D:\\x.xyz", "2\n\nN 0 0 0\nN 1.9 0 0\n");
    write("D:\\a.htm",
          "<BODY STYLE=\"margin:0\" ONCLICK=\"frames[0].postMessage({moleculeSet: {labels: true, measure: "
          "true}}, "
          "'*')\"><EMBED SRC=x.xyz WIDTH=340 HEIGHT=290><P>click");
    open("D:\\a.htm");
    ASSERT_TRUE(runUntil([&] { return count(frame, isBlue) > 500; }));
    const QColor label(0xe8, 0xee, 0xf5);
    const QColor measure(0xff, 0xd8, 0x4a);
    const int letters = count(frame, label);
    QTest::mouseClick(input(), Qt::LeftButton, {}, {400, 400});
    EXPECT_TRUE(runUntil([&] { return count(frame, label) > letters + 10; }));
    for (const int half : {0, 1}) {
        QTest::mouseClick(input(), Qt::LeftButton, {}, middleOfBlue(CRect::at(half * 170, 0, 170, 270)));
    }
    EXPECT_TRUE(runUntil([&] { return count(frame, measure) > 60; })) << "the line and the distance";
    QTest::keyClick(input(), Qt::Key_Escape);
    EXPECT_TRUE(runUntil([&] { return count(frame, measure) == 0; }));
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Space, Qt::Key_Return}) {
        QTest::keyClick(input(), key);
    }
    EXPECT_TRUE(runUntil([&] { return count(frame, measure) > 60; })) << "by keys";
}

}  // namespace
