#include <gtest/gtest.h>

#include "formats/BrowseIndex.h"
#include "formats/ElementIndex.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "platform/text/CodePage1253.h"
#include "tests/tools/contentc/ContentFolder.h"

namespace {

using namespace std::string_literals;

std::string greek(const char* utf8) { return platform::fromUtf8(utf8); }

std::string topic(const std::string& title, const std::string& more, const std::string& body) {
    return "title: " + title + "\nsummary: S\n" + more + "---\n" + body;
}

TEST(CompiledFiles, LinesMayHaveTheGreatestLength) {
    ContentFolder content;
    const std::string paragraph = "<P CLASS=\"lead\"></P>";
    content.write("pages/uses/400010.md", topic("T", "", std::string(20000 - paragraph.size(), 'x')));
    EXPECT_TRUE(content.compile());
    EXPECT_EQ(content.messages, std::vector<std::string>{});
}

TEST(CompiledFiles, HoldTheirSourceInCodePage1253) {
    const struct {
        const char* source;
        std::string text;
        const char* file;
        const char* compiled;  // UTF-8
    } cases[] = {
        {"pages/uses/400010.md", topic("Άλας & <νερό>", "", "Άλας\r\n\n[[υ|υδρογόνο]]\n"), "40\\0010",
         "<HTML>\r\n<TITLE>Άλας &amp; &lt;νερό&gt;</TITLE>\r\n<LINK HREF=\"\x05..style\\kalyxo.css\">\r\n"
         "<BODY CLASS=\"uses\">\r\n<P>Η χημεία στην πράξη</P>\r\n<P "
         "CLASS=\"lead\">Άλας</P>\r\n<P>~Gydroyzcqυ~G</P>\r\n"
         "</BODY></HTML>\r\n"},
        {"datasets/gases.data",
         "number: 1\ntitle: Αέρια\ncolumn: text | N\ncolumn: number | V\n---\nήλιο\t4.003\n",
         "datasets\\gases.dat",
         "number: 1\r\ntitle: Αέρια\r\ncolumn: text | N\r\ncolumn: number | V\r\n---\r\nήλιο\t4.003\r\n"},
        {"glossary/hydrogen.md", "# υδρογόνο\nΠρώτη\nγραμμή.\n\nΤρίτη.\n\n\n", "glossary\\ydroyzcq.htm",
         "υδρογόνο\r\nΠρώτη γραμμή.\r\nΤρίτη.\r\n"},
    };
    for (const auto& [source, text, file, compiled] : cases) {
        ContentFolder content;
        content.write(source, text);
        EXPECT_EQ(content.compiled(file), greek(compiled)) << source;
    }
}

// As simple editors on other systems save them.
TEST(CompiledFiles, AreTheSameWithByteOrderMarksAndOtherLineEnds) {
    ContentFolder plain;
    ContentFolder other;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(plain.sources())) {
        if (!entry.is_regular_file()) continue;
        const bool isMolecule = entry.path().extension() == ".mol";
        std::string text = isMolecule ? "" : "\xEF\xBB\xBF";
        for (const char c : readAll(entry.path())) text += c == '\n' ? "\r\n" : std::string(1, c);
        other.write(entry.path().lexically_relative(plain.sources()).generic_string(), text);
    }
    const auto files = plain.compile();
    const auto others = other.compile();
    EXPECT_EQ(other.messages, std::vector<std::string>{});
    ASSERT_TRUE(files && others);
    for (const auto& [key, file] : files->files()) {
        if (key.starts_with("mol\\")) continue;
        EXPECT_EQ(others->files().at(key).bytes, file.bytes) << key;
    }
}

TEST(CompiledFiles, MarksBecomeMarkers) {
    ContentFolder content;
    content.write("../built/fire.webm", "\x1A\x45\xDF\xA3");
    content.write("../built/atom.png", samplePng);
    content.write("templates/page.html", "{{title}}{{section}}\n{{body}}\n");
    const struct {
        const char* source;
        std::string line;
    } cases[] = {
        {"<DIV>{{data}}images\\atom.png {{data}}images/ATOM.png</DIV>",
         "<DIV>\x05..images\\atom.png \x05..images/ATOM.png</DIV>"},
        {"<DIV>[[H|υδρογόνο]] and [[*H*|υδρογόνο]]!</DIV>",
         "<DIV>~GydroyzcqH~G and ~Gydroyzcq<I>H</I>~G!</DIV>"},
        {"  {{video fire}} ",
         "<DIV CLASS=\"film\">\r\n<EMBED SRC=\"\x04..video\\fire.webm\" WIDTH=320 HEIGHT=258 "
         "AUTOPLAY=FALSE>\r\n<P CLASS=\"caption\"><A HREF=\"a:\\a.htm\">Μεγέθυνση</A></P>\r\n</DIV>"},
        {"<DIV>a[b] ]] } ~ g</DIV>", "<DIV>a[b] ]] } &#126; g</DIV>"},
    };
    for (const auto& [source, line] : cases) {
        content.write("pages/uses/400010.md", topic("T", "", source));
        EXPECT_EQ(content.compiled("40\\0010"), "Tuses\r\n" + greek(line.c_str()) + "\r\n") << source;
    }
}

TEST(CompiledFiles, ToolsAreBoxesWithTheirScripts) {
    ContentFolder content;
    content.write("tools/clock/face.js", "");
    content.write("tools/clock/settings.txt", "at\nof\n");
    content.write("tools/quiz/face.js", "");
    content.write("templates/page.html", "{{title}}{{section}}\n{{body}}\n");
    const auto scripts = [](const std::string& name) {
        return "</DIV><LINK REL=\"stylesheet\" HREF=\"\x05..tools\\shared\\style.css\"><SCRIPT "
               "TYPE=\"module\" "
               "SRC=\"\x05..tools\\" +
               name + "\\face.js\"></SCRIPT>";
    };
    content.write("pages/uses/400010.md",
                  topic("T", "",
                        " {{tool clock at=\"<3 & ώρα\" of=\"\"}}\n::: quiz\n? [[H|υδρογόνο]]\n- a\n> no\n"
                        "\n+ b\n! so\n? q\n+ a\n- b\n:::\nend"));
    EXPECT_EQ(
        content.compiled("40\\0010"),
        "Tuses\r\n<DIV CLASS=\"tool\" DATA-TOOL=\"clock\" DATA-at=\"&lt;3 &amp; " + greek("ώρα") +
            "\" DATA-of=\"\">\r\n" + scripts("clock") +
            "\r\n<DIV CLASS=\"tool\" DATA-TOOL=\"quiz\">\r\n"
            "<DIV CLASS=\"question\"><P CLASS=\"asked\">~GydroyzcqH~G</P><UL>\r\n"
            "<LI><SPAN CLASS=\"answer\">a</SPAN>\r\n<P CLASS=\"why\">no</P>\r\n"
            "<LI CLASS=\"right\"><SPAN CLASS=\"answer\">b</SPAN>\r\n"
            "</UL><P CLASS=\"explanation\">so</P></DIV>\r\n"
            "<DIV CLASS=\"question\"><P CLASS=\"asked\">q</P><UL>\r\n"
            "<LI CLASS=\"right\"><SPAN CLASS=\"answer\">a</SPAN>\r\n<LI><SPAN CLASS=\"answer\">b</SPAN>\r\n"
            "</UL></DIV>\r\n" +
            scripts("quiz") + "\r\n<P CLASS=\"lead\">end</P>\r\n");
}

TEST(CompiledFiles, ScriptsOfToolsAreCopiedAndFindTheElements) {
    ContentFolder content;
    EXPECT_EQ(content.compiled("tools\\shared\\elements.js"), "");
    content.write("tools/clock/face.js", "'ώρα'\n");
    content.write("tools/clock/settings.txt", "");
    EXPECT_EQ(content.compiled("tools\\clock\\face.js"), "'ώρα'\n");
    EXPECT_FALSE(content.compile()->contains("tools\\clock\\settings.txt"));
    const std::string elements = content.compiled("tools\\shared\\elements.js");
    EXPECT_NE(elements.find("\n  Cl: { number: 17, name: 'Χλώριο', mass: '35.45', isStandard: true },\n"),
              std::string::npos);
    EXPECT_NE(elements.find("\n  Tc: { number: 43, name: 'Τεχνήτιο', mass: '97', isStandard: false },\n"),
              std::string::npos);
}

TEST(CompiledFiles, BodyTakesItsPlaceInALineOfTheScaffold) {
    ContentFolder content;
    content.write("templates/page.html", "{{title}}{{section}}\n<TD>{{body}}</TD>\nend");
    content.write("pages/uses/400010.md", topic("T", "", "<P>1\n2</P>\n"));
    EXPECT_EQ(content.compiled("40\\0010"), "Tuses\r\n<TD>\r\n<P>1\r\n2</P>\r\n</TD>\r\nend\r\n");
}

TEST(CompiledFiles, MoleculePageNamesItsFileAndKeepsTheLayout) {
    ContentFolder content;
    const std::string page = content.compiled("37\\0010");
    EXPECT_NE(page.find("\r\n<EMBED SRC=\"\x03..mol\\water.mol\" WIDTH=340 HEIGHT=290\r\n"),
              std::string::npos);
    EXPECT_EQ(page.find("{{"), std::string::npos);
    EXPECT_NE(page.find("</TABLE>\r\n<P>H<SUB>2</SUB>O</P>\r\n"), std::string::npos);
    EXPECT_EQ(content.compiled("mol\\water.mol"), sampleMolecule);
    content.write("pages/struct/370010.md",
                  "title: Νερό\nsummary: S\n---\n{{molecule water \"Το νερό, $H2O$, και "
                  "[[υδρογόνο]].\"}}\n<P>...</P>\n");
    EXPECT_NE(content.compiled("37\\0010")
                  .find("</TABLE>" + greek("Το νερό, H<SUB>2</SUB>O, και ~Gydroyzcqυδρογόνο~G. ") + "\r\n"),
              std::string::npos)
        << content.compiled("37\\0010");
}

TEST(CompiledFiles, PlainPagesHaveATitleAndRelativeAddresses) {
    ContentFolder content;
    content.write("help.md", "title: Βοήθεια\n---\n<IMG SRC=\"{{data}}images/x.png\">\n");
    content.write("pictures/x.png", samplePng);
    const std::string page = content.compiled("help.htm");
    EXPECT_TRUE(page.starts_with("<HTML>\r\n<HEAD>\r\n"));
    EXPECT_NE(page.find("charset=windows-1253"), std::string::npos);
    EXPECT_TRUE(page.ends_with("<H1>" + greek("Βοήθεια") +
                               "</H1>\r\n<IMG SRC=\"images/x.png\">\r\n</DIV>\r\n</BODY>\r\n</HTML>\r\n"));
    EXPECT_NE(content.compiled("a.htm").find("<P>Welcome</P>"), std::string::npos);
}

TEST(CompiledFiles, PicturesAreCopiedAndTwoOfOneNameRefused) {
    ContentFolder content;
    content.write("pictures/atom.png", samplePng);
    content.write("../built/mainmenu.bmp", "BM");
    content.write("../built/notes.txt", "not a picture");
    EXPECT_EQ(content.compiled("images\\atom.png"), samplePng);
    EXPECT_EQ(content.compiled("images\\mainmenu.bmp"), "BM");
    content.write("pictures/Atom.PNG", samplePng);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages,
              (std::vector{"pictures/Atom.PNG:1: warning: no page uses this picture"s,
                           "pictures/atom.png:1: 'images\\atom.png' is already made from pictures/Atom.PNG"s,
                           "pictures/atom.png:1: warning: no page uses this picture"s}));
}

TEST(CompiledFiles, IndexesListThePagesInDisplayOrder) {
    ContentFolder content;
    content.write("pages/uses/400030.md", topic("Second", "order: 2\n", ""));
    content.write("pages/uses/400050.md", topic("First", "order: -1\n", ""));
    content.write("pages/uses/400040.md", topic("Third", "order: 2\n", ""));
    for (const char* entry : {"40003", "40001", "120002"}) {
        content.write("pages/uses/"s + entry + ".md",
                      "title: E"s + entry + "\nkind: entry\ntopic: 400030\n---\n");
    }
    content.write("pages/uses/40002.md", "title: Athens\nkind: entry\ntopic: 400000\n---\n");

    const std::vector<formats::SectionTitleRecord> titles{
        {"Start of uses", 400000}, {"First", 400050}, {"Second", 400030}, {"Third", 400040}};
    EXPECT_EQ(formats::decodeSectionTitles(content.compiled("uses.dat")), titles);

    const std::string countries = content.compiled("country.ttl");
    EXPECT_EQ(countries.size(), 3 * formats::titleListRecordSize);
    EXPECT_EQ(formats::entryTitle(countries, 1), "E40001");
    EXPECT_EQ(formats::entryTitle(countries, 2), "Athens");
    EXPECT_EQ(formats::entryTitle(content.compiled("video.ttl"), 2), "E120002");
    EXPECT_EQ(content.compile()->contains("photo.ttl"), true);

    const auto index = formats::decodeBrowseIndex(content.compiled("select.ndx"));
    ASSERT_TRUE(index);
    const formats::BrowseSection expected{
        4,
        {{400000, 400000, "Start of uses", {{40002, "Athens"}}},
         {400050, 400050, "First", {}},
         {400030, 400030, "Second", {{40001, "E40001"}, {40003, "E40003"}, {120002, "E120002"}}},
         {400040, 400040, "Third", {}}}};
    EXPECT_EQ(*formats::findSection(*index, 4), expected);
    EXPECT_EQ(index->sections.size(), 7U);
}

TEST(CompiledFiles, EveryElementOfAFamilyHasAPage) {
    ContentFolder content;
    content.write("glossary/atoms.md", "# Ισότοπα | ισοτόπων | ισότοπά\nΆτομα ενός στοιχείου.\n");
    content.write("pages/elemcomp/10003-lithium.md",
                  "τίτλος: Λίθιο\nθέμα: 410010\n---\n[[Ισότοπα]]\n\n::: στοιχείο λίθιο\n:::\n");
    content.write("families.txt", "# a family\nΑλκάλια | Αέρια | Χρήσιμα.\n");
    const std::string index = content.compiled("ptable.ndx");
    EXPECT_TRUE(content.messages.empty());
    EXPECT_EQ(formats::decodeElementIndex(index),
              (std::vector<formats::ElementPageRecord>{
                  {1, 10001}, {3, 10003}, {11, 10011}, {19, 10019}, {37, 10037}, {55, 10055}, {87, 10087}}));
    const auto titles = formats::decodeSectionTitles(content.compiled("elemcomp.dat"));
    ASSERT_EQ(titles.size(), 9U);
    EXPECT_EQ(titles[3], (formats::SectionTitleRecord{greek("Λίθιο"), 10003}));
    const std::string own = content.compiled(R"(01\3\000)");
    EXPECT_NE(own.find("<SPAN CLASS=\"symbol\">Li</SPAN>"), std::string::npos);
    const std::string made = content.compiled(R"(01\1\001)");
    EXPECT_NE(made.find(greek("<P>Ανακαλύφθηκε το 1807. Χρήσιμα.</P>")), std::string::npos) << made;
}

}  // namespace
