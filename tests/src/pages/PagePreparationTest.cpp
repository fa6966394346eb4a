#include <gtest/gtest.h>

#include "src/pages/PagePreparer.h"
#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

class PagePreparation : public testing::Test {
  protected:
    /// The prepared form of a page on D:, with its line ends as the program writes them.
    std::string prepare(const std::string& page, const std::string& dataFolder = "D:\\") {
        drives.put("D:\\page", page);
        const PagePreparer preparer(drives.files, dataFolder, "C:\\");
        EXPECT_EQ(preparer.PreparePage("D:\\page", "C:\\1.htm", contents), PrepareResult::prepared);
        return drives.get("C:\\1.htm");
    }

    TestDrives drives;
    PageContents contents;
};

struct LineCase {
    const char* what;
    std::string source;
    std::string prepared;
};

TEST_F(PagePreparation, RewritesEachMarker) {
    const LineCase cases[] = {
        {"nothing to do", "<P>text</P>\n", "<P>text</P>\r\n"},
        {"last line without end", "<P>text", "<P>text"},
        {"data folder, twice", "\x05..a.gif \x05..b.gif\n", "D:\\x\\a.gif D:\\x\\b.gif\r\n"},
        {"marker as the last byte", "end\x05", "endD:\\x\\"},
        {"video, only the first", "<EMBED SRC=\"\x04..v.webm\" \x04..w>\n",
         "<EMBED SRC=\"D:\\x\\v.webm\" \x04..w>\r\n"},
        {"body colours", "<BODY BGCOLOR=\"#FFFFFF\">\n", "<BODY VLINK=\"#0059CA\" BGCOLOR=\"#FFFFFF\">\r\n"},
        {"body with own visited colour", "<BODY VLINK=\"#111111\" ALINK=\"#FFFFFF\">\n",
         "<BODY VLINK=\"#111111\" ALINK=\"#0059CA\">\r\n"},
        {"lower-case body stays", "<body ALINK=\"#FFFFFF\">\n", "<body ALINK=\"#FFFFFF\">\r\n"},
        {"capital alpha with tonos", "\xA2\xA2<\xA2>\n", "&#x0386;&#x0386;<&#x0386;>\r\n"},
        {"credit line", "<DIV ALIGN=right>2001 Orvane Press</DIV></DIV>\n", "2001 Orvane Press\r\n"},
        {"other line with such a wrapper", "<DIV ALIGN=right>Press</DIV>\n",
         "<DIV ALIGN=right>Press</DIV>\r\n"},
        {"term", "~G12345678water~G boils\n", "<A HREF=\"pjqbhg12345678.htm\"><U>water</U></A> boils\r\n"},
        {"two terms", "~G12345678a~G,~G87654321b~G.\n",
         "<A HREF=\"pjqbhg12345678.htm\"><U>a</U></A>,<A HREF=\"pjqbhg87654321.htm\"><U>b</U></A>.\r\n"},
        {"term without end", "~G12345678water \x05..\n", "~G12345678water D:\\x\\\r\n"},
        {"term that ends within its key", "~G1234~G5678water\n", "~G1234~G5678water\r\n"},
        {"a NUL ends its line and the line end", std::string("a\0\x05..b\nc\0\n\0d\ne\n", 15), "ace\r\n"},
        {"tilde that is no term hides the term", "~ ~G12345678a~G\n", "~ ~G12345678a~G\r\n"},
    };
    for (const LineCase& c : cases) EXPECT_EQ(prepare(c.source, "D:\\x\\"), c.prepared) << c.what;
}

TEST_F(PagePreparation, CopiesTheMoleculeBesideThePage) {
    drives.put("D:\\mol\\water.mol", "atoms");
    EXPECT_EQ(prepare("<EMBED SRC=\"\x03..mol\\water.mol\" ALT=\"\" X=D:\\mol\\water.mol>\n"),
              "<EMBED SRC=\"chime.mol\" ALT=\"\" X=chime.mol>\r\n");
    EXPECT_EQ(drives.get("C:\\chime.mol"), "atoms");
    EXPECT_EQ(prepare("<EMBED SRC=\"\x03..mol\\none.mol\">\n"), "<EMBED SRC=\"D:\\mol\\none.mol\">\r\n");
    EXPECT_TRUE(contents.molecule);
}

// A page can quote any file in the line of a molecule, to have it copied to where the page can read it.
TEST_F(PagePreparation, CopiesNothingButMoleculesOfTheDataFolder) {
    drives.put("D:\\data\\mol\\Water.MOL", "atoms");
    drives.put("D:\\data\\notes.txt", "text");
    drives.put("D:\\data\\molecule", "no ending");
    drives.put("D:\\data2\\other.mol", "other");
    drives.put("C:\\secret.mol", "secret");
    drives.put("D:\\data\\huge.mol", "");
    std::filesystem::resize_file(drives.host("D:\\data\\huge.mol"), std::uintmax_t{5} << 30);
    std::filesystem::create_directory(drives.host("D:\\data\\folder.mol"));
    std::filesystem::create_symlink(drives.host("C:\\secret.mol"), drives.host("D:\\data\\link.mol"));
    drives.files.setContentFolder("D:\\data\\");
    const char* const refused[] = {
        "D:\\data\\link.mol",   "C:\\secret.mol",          "D:\\data\\..\\data2\\other.mol",
        "D:\\data2\\other.mol", "D:\\data\\notes.txt",     "D:\\data\\huge.mol",
        "D:\\data\\folder.mol", "D:\\data\\mol\\none.mol", "D:\\data\\mol\\Water.MOL.",
        "mol\\water.mol",       "D:\\data\\molecule",      "",
    };
    for (const char* const file : refused) {
        const std::string line = "<!-- \"" + std::string(file) + "\" ";
        EXPECT_EQ(prepare(line + "\x03..-->\n", "D:\\data\\"), line + "D:\\data\\-->\r\n") << file;
        EXPECT_FALSE(drives.has("C:\\chime.mol")) << file;
    }
    EXPECT_EQ(prepare("<EMBED SRC=\"\x03..x\\..\\MOL\\water.mol\">\n", "D:\\data\\"),
              "<EMBED SRC=\"chime.mol\">\r\n");
    EXPECT_EQ(drives.get("C:\\chime.mol"), "atoms");
    {
        const FullDisk full(2);
        prepare("\"\x03..mol\\water.mol\"\n", "D:\\data\\");
    }
    EXPECT_EQ(drives.get("C:\\chime.mol"), "atoms") << "a copy that fails leaves the former one";
}

TEST_F(PagePreparation, TakesLinesOfAnyLength) {
    const std::string megabyte(1 << 20, 'x');
    EXPECT_EQ(prepare(megabyte + "\n"), megabyte + "\r\n");
    // 5,000 placeholders on a line outgrow the working buffer many times over.
    std::string markers;
    std::string paths;
    for (int i = 0; i < 5000; ++i) {
        markers += "\x05..";
        paths += "D:\\a long data folder\\";
    }
    EXPECT_EQ(prepare(markers + "\n", "D:\\a long data folder\\"), paths + "\r\n");
}

// Rewriting makes this page larger than any may be, as it would one that fills the disk.
TEST_F(PagePreparation, StopsAtAPageThatIsTooLarge) {
    prepare("<EMBED SRC=\"\x04..v.webm\">\n");
    const std::string folder = "D:\\" + std::string(200, 'x') + "\\";
    std::string page;
    for (int line = 0; line < 400; ++line) {
        for (int i = 0; i < 1000; ++i) page += "\x05..";
        page += '\n';
    }
    drives.put("D:\\page", page);
    const PagePreparer preparer(drives.files, folder, "C:\\");
    EXPECT_EQ(preparer.PreparePage("D:\\page", "C:\\2.htm", contents), PrepareResult::noTarget);
    EXPECT_FALSE(drives.has("C:\\2.htm"));
    EXPECT_TRUE(contents.video);
}

TEST_F(PagePreparation, FailuresLeaveTheFlagsAndWriteNothing) {
    prepare("<EMBED SRC=\"\x04..v.webm\">\n");
    const PagePreparer preparer(drives.files, "D:\\", "C:\\");
    EXPECT_EQ(preparer.PreparePage("D:\\missing", "C:\\2.htm", contents), PrepareResult::noSource);
    EXPECT_FALSE(drives.has("C:\\2.htm"));
    EXPECT_EQ(preparer.PreparePage("D:\\page", "C:\\no\\such\\folder\\2.htm", contents),
              PrepareResult::noTarget);
    EXPECT_TRUE(contents.video);
    const FullDisk full(5);
    EXPECT_EQ(preparer.PreparePage("D:\\page", "C:\\3.htm", contents), PrepareResult::prepared);
    EXPECT_LE(drives.get("C:\\3.htm").size(), 5U) << "as far as it fits";
}

TEST_F(PagePreparation, IsAPageAsFarAsItWentWhenCancelled) {
    std::string page;
    for (int i = 0; i < 1000; ++i) page += "<P>\n";
    drives.put("D:\\page", page);
    const PagePreparer preparer(drives.files, "D:\\", "C:\\");
    const auto never = [](std::uint64_t, std::uint64_t) { return false; };
    EXPECT_EQ(preparer.PreparePage("D:\\page", "C:\\1.htm", contents, never), PrepareResult::prepared);
    const std::string prepared = drives.get("C:\\1.htm");
    EXPECT_TRUE(prepared.starts_with("<P>\r\n"));
    EXPECT_LT(prepared.size(), page.size());
}

TEST_F(PagePreparation, WritesTheEnlargedMoleculePage) {
    std::string page = "<HTML>\n";
    for (int line = 2; line <= 12; ++line) page += "head\n";
    page += "<EMBED SRC=\"\x03..m.mol\" WIDTH=340 HEIGHT=2900\nspin\ndisplay=true>\nkept\n</TD>\nlost\n";
    prepare(page);
    EXPECT_EQ(
        drives.get("C:\\bigvid.htm"),
        "<HTML>\r\n<BODY BGCOLOR=\"#000000\">\r\n<EMBED SRC=\"D:\\m.mol\" WIDTH=640 HEIGHT=4980\r\nspin\r\n"
        "display=false\r\nkept\r\n</BODY></HTML>\r\n");
    prepare(page.replace(page.find("spin"), 5, std::string("spin\n\0", 6)));
    EXPECT_EQ(drives.get("C:\\bigvid.htm").find('\0'), std::string::npos);
    prepare("<HTML>\n\x03..m.mol\n");
    EXPECT_EQ(drives.get("C:\\bigvid.htm"), "<HTML>\r\n<BODY BGCOLOR=\"#000000\">\r\n\r\n</BODY></HTML>\r\n");
}

TEST_F(PagePreparation, EnlargedPageIsTheLastThatCouldBeMade) {
    prepare("<EMBED SRC=\"\x04..a.webm\">\n");
    const std::string former = drives.get("C:\\bigvid.htm");
    prepare("\x04..b.webm\n");
    EXPECT_EQ(drives.get("C:\\bigvid.htm"), former) << "no quote ends the address";
    EXPECT_TRUE(contents.video);
    prepare("<HTML>\n<EMBED SRC=\"\x04..a.webm\"> \x03..m.mol\n");
    EXPECT_TRUE(drives.get("C:\\bigvid.htm").starts_with("<HTML>\r\n<BODY BGCOLOR=\"#000000\">"));
}

}  // namespace
}  // namespace kalyxo
