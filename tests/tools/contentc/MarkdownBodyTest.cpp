#include <gtest/gtest.h>

#include "platform/text/CodePage1253.h"
#include "tests/tools/contentc/ContentFolder.h"

namespace {

/// A folder with a page in Markdown, whose lines begin at line 5.
class MarkdownPage {
  public:
    MarkdownPage() {
        content_.write("pictures/air.svg", "<svg width=\"460\" height=\"230\">");
        content_.write("../built/air.png", "");
        content_.write("../built/melting.webm", "");
        content_.write("tools/quiz/face.js", "");
        content_.write("glossary/terms.md", "# Άτομο | άτομα\nΤο πιο μικρό κομμάτι\nενός στοιχείου.\n");
    }

    bool compile(const std::string& body) {
        content_.write("pages/uses/400010-try.md", "τίτλος: Δοκιμή\nπερίληψη: Μία.\n\n---\n" + body);
        page_ = platform::toUtf8(content_.compiled("40\\0010"));
        return !page_.empty();
    }

    /// The HTML of the body, in UTF-8, with LF.
    std::string html() const {
        const std::string begin = "πράξη</P>\r\n";
        std::string text = page_.substr(page_.find(begin) + begin.size());
        text.resize(text.find("</BODY>"));
        std::erase(text, '\r');
        return text;
    }

    const std::vector<std::string>& messages() const { return content_.messages; }

  private:
    ContentFolder content_;
    std::string page_;
};

TEST(MarkdownBody, BecomesTheHtmlOfThePage) {
    const struct {
        const char* body;
        const char* html;
    } cases[] = {
        {"Ένα *δύο* **τρία**\nτέσσερα\n\nπέντε  \nέξι",
         "<P CLASS=\"lead\">Ένα <I>δύο</I> <B>τρία</B>\nτέσσερα</P>\n<P>πέντε<BR>\nέξι</P>\n"},
        {"## Ένα $H2$\n### Δύο\n", "<H2>Ένα H<SUB>2</SUB></H2>\n<H3>Δύο</H3>\n"},
        {"1. ένα\n2. δύο\n\n- α\n- β",
         "<OL>\n<LI>ένα</LI>\n<LI>δύο</LI>\n</OL>\n<UL>\n<LI>α</LI>\n<LI>β</LI>\n</UL>\n"},
        // Characters that the code page lacks, and those that would be taken for marks.
        {"H₂O → ~ \\$ [[άτομα|Άτομο]] `$a [[b`",
         "<P CLASS=\"lead\">H&#8322;O &#8594; &#126; $ ~Gatom4y00άτομα~G <CODE>$a &#91;[b</CODE></P>\n"},
        {"&#5;..mol", "<P CLASS=\"lead\">&#5;..mol</P>\n"},
        {"[τα αέρια](Αέρια), [](10001), [ιστός](https://a.b/c_d_e)",
         "<P CLASS=\"lead\"><A HREF=\"kzpage-6-410010-0.htm\">τα αέρια</A>, "
         "<A HREF=\"kzpage-6-410010-10001.htm\">Υδρογόνο</A>, <A HREF=\"https://a.b/c_d_e\">ιστός</A></P>\n"},
        {"$$\n2 H2 + O2 -> 2 H2O\n// καύση *αερίου*\n$$",
         "<P CLASS=\"equation\">\n2&nbsp;H<SUB>2</SUB> + O<SUB>2</SUB> &#8594; 2&nbsp;H<SUB>2</SUB>O\n"
         "<SMALL>καύση <I>αερίου</I></SMALL></P>\n"},
        {"![Ο αέρας](air.svg \"Λεζάντα $N2$\"){230}{πλάι}",
         "<DIV CLASS=\"figure side\"><IMG SRC=\"\x05..images\\air.png\" WIDTH=230 HEIGHT=115 ALT=\"Ο "
         "αέρας\">\n"
         "<P CLASS=\"caption\">Λεζάντα N<SUB>2</SUB></P></DIV>\n"},
        {"Πίνακας: Οι τιμές\n\n| α | β |\n|---|---:|\n| $H2$ | -5 |",
         "<TABLE CLASS=\"data\"><CAPTION>Οι τιμές</CAPTION>\n<THEAD><TR><TH>α</TH><TH "
         "CLASS=\"num\">β</TH></TR></THEAD>\n"
         "<TR><TD>H<SUB>2</SUB></TD><TD CLASS=\"num\">&#8722;5</TD></TR>\n</TABLE>\n"},
        {"| | |\n|---|---|\n| όνομα | [[άτομα|άτομο]] |",
         "<TABLE CLASS=\"data\">\n<TR><TH>όνομα</TH><TD>~Gatom4y00άτομα~G</TD></TR>\n</TABLE>\n"},
        {"::: quiz\n? 1. Ποιο;\n- -5 °C **β**\n+ **γ** - α\n:::",
         "<DIV CLASS=\"tool\" DATA-TOOL=\"quiz\">\n<DIV CLASS=\"question\"><P CLASS=\"asked\">1. "
         "Ποιο;</P><UL>\n"
         "<LI><SPAN CLASS=\"answer\">&#8722;5&nbsp;°C <B>β</B></SPAN>\n<LI CLASS=\"right\"><SPAN "
         "CLASS=\"answer\"><B>γ</B> - "
         "α</SPAN>\n</UL></DIV>\n</DIV><LINK REL=\"stylesheet\" "
         "HREF=\"\x05..tools\\shared\\style.css\"><SCRIPT "
         "TYPE=\"module\" SRC=\"\x05..tools\\quiz\\face.js\"></SCRIPT>\n"},
        {"::: Το ήξερες\nΝαι.\n:::", "<DIV CLASS=\"fact\">\n<H3>Το ήξερες;</H3>\n<P>Ναι.</P>\n</DIV>\n"},
        {"::: experiment Σκουριά\nΒάλε.\n\n::: caution\nΓυαλιά.\n:::\n:::",
         "<DIV CLASS=\"experiment\">\n<H3>Πείραμα: Σκουριά</H3>\n<P>Βάλε.</P>\n<DIV CLASS=\"care\">\n"
         "<P>Γυαλιά.</P>\n</DIV>\n</DIV>\n"},
        {"::: ερώτηση\nΤι;\n\n---\nΑυτό.\n:::",
         "<DETAILS CLASS=\"ask\"><SUMMARY>\n<P>Τι;</P>\n</SUMMARY>\n<DIV CLASS=\"answer\">\n<P>Αυτό.</P>\n"
         "</DIV></DETAILS>\n"},
        {"{{βίντεο melting \"Ο πάγος\"}}",
         "<DIV CLASS=\"film\">\n<EMBED SRC=\"\x04..video\\melting.webm\" WIDTH=320 HEIGHT=258 "
         "AUTOPLAY=FALSE>\n"
         "<P CLASS=\"caption\">Ο πάγος <A HREF=\"a:\\a.htm\">Μεγέθυνση</A></P>\n</DIV>\n"},
        {"α [[<IMG SRC=x>|άτομο]] [[<B>β</B>|άτομο]]",
         "<P CLASS=\"lead\">α ~Gatom4y00<IMG SRC=x>~G ~Gatom4y00<B>β</B>~G</P>\n"},
        {"::: hint ---\n:::\n::: hint <U>α</U> # β\n:::",
         "<DIV CLASS=\"hint\">\n<H3>—</H3>\n</DIV>\n<DIV CLASS=\"hint\">\n<H3><U>α</U> # β</H3>\n</DIV>\n"},
        {"<DIV CLASS=\"fact\"><P>&egrave; [[Άτομο]] $H2$</P></DIV>",
         "<DIV CLASS=\"fact\"><P>&egrave; ~Gatom4y00Άτομο~G H<SUB>2</SUB></P></DIV>\n"},
    };
    for (const auto& [body, html] : cases) {
        MarkdownPage page;
        EXPECT_TRUE(page.compile(body)) << body << testing::PrintToString(page.messages());
        EXPECT_EQ(page.html(), html) << body;
    }
}

TEST(MarkdownBody, MistakesAreReportedByLine) {
    const struct {
        const char* body;
        std::vector<std::string> messages;
    } cases[] = {
        {"α\n[[ηλεκτρόνιο]] [[ |άτομο]] [[α\n$a",
         {"6:1: no glossary term is called 'ηλεκτρόνιο'; write it in the folder 'glossary': a line '# "
          "ηλεκτρόνιο', and its text below",
          "6:16: a glossary link without words", "6:28: '[[' is not closed on its line",
          "7:1: '$' is not closed on its line; a dollar sign is written '\\$'"}},
        {"α [β](Αερια.) [](99) $K_$ [[ατομ]]",
         {"5:7: no page is called 'Αερια.'; did you mean 'Αέρια'?", "5:18: no page has the number 99",
          "5:22: formula 'K_': nothing to lower behind '_'",
          "5:27: no glossary term is called 'ατομ'; did you mean 'Άτομο'?"}},
        {"::: κουτί\n:::\n:::\n::: fact\nα",
         {"5:5: no box is called 'κουτί'", "7:1: ':::' closes no box",
          "8:1: the box is not closed by a line ':::'"}},
        {"![](none.svg)\n\n![α](air.svg){μεγάλο}\n\n![α](air.svg){2000000000}",
         {"5:1: the picture needs words for those who do not see it: '![words](file)'",
          "5:5: no picture is named 'none.svg'; put the file into the folder 'pictures'",
          "7:15: '{μεγάλο}' is neither the width of the picture nor '{πλάι}' or '{side}'",
          "9:15: '{2000000000}' is neither the width of the picture nor '{πλάι}' or '{side}'"}},
        {"α ![β](air.svg)", {"5:8: a picture stands on a line of its own"}},
    };
    for (const auto& [body, messages] : cases) {
        MarkdownPage page;
        EXPECT_FALSE(page.compile(body)) << body;
        std::vector<std::string> expected;
        expected.reserve(messages.size());
        for (const std::string& message : messages) expected.push_back("pages/uses/400010-try.md:" + message);
        std::vector<std::string> found = page.messages();
        std::erase_if(
            found, [](const std::string& message) { return message.find("warning") != std::string::npos; });
        EXPECT_EQ(found, expected) << body;
    }
}

}  // namespace
