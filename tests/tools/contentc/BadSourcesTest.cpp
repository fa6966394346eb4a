#include <gtest/gtest.h>

#include "formats/DataSet.h"
#include "tests/tools/contentc/ContentFolder.h"

namespace {

using Messages = std::vector<std::string>;

const std::string topicHeader = "title: T\nsummary: S\n---\n";

constexpr const char* pageFile = "pages/uses/400010.md";
constexpr const char* moleculeFile = "templates/molecule.html";

// The molecule page's lines, from the one with the EMBED on; the twelve before them are blank.
std::string moleculeTemplate(const std::string& fromLine13, int linesBefore = 12) {
    return "{{title}}{{section}}<TD>" + std::string(static_cast<std::size_t>(linesBefore), '\n') +
           fromLine13 + "{{body}}\n";
}

std::string repeated(int times, const std::string& text) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

const std::string embedLines = "<EMBED SRC=\"{{molfile}}\" WIDTH=340 HEIGHT=290\n";
const std::string noEmbed =
    "13: line 13 of the finished molecule page must hold the '<EMBED ' of the molecule with the sizes 340 "
    "and 290";
const std::string noTrue = "15: line 15 of the finished molecule page must end in its only 'true'";

/// One file of the sources with a text that is wrong, and all that there is to say about it; messages that
/// begin with a line number are about this file.
const struct {
    const char* file;
    std::string text;
    Messages messages;
} badSources[] = {
    // Data sets.
    {"datasets/gases.data",
     "number: 1\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\nα\t1\nβ\tδύο\nγ\n",
     {"7: the row of 'β' has words where a number belongs",
      "8: the row of 'γ' has not as many cells as there are columns"}},
    {"datasets/gases.data",
     "number: 1\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\n" +
         repeated(formats::DataSet::maxRows, "α\t1\n") + "β\t1\n",
     {std::to_string(formats::DataSet::maxRows + 6) + ": the row of 'β' is one too many"}},
    {"datasets/gases.data",
     "number: 0\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\n",
     {"1: no field with a right value",
      "5: the head needs 'number', 'title', a first column of words, a column of numbers, and a 'graph' of "
      "such"}},
    // Headers of pages.
    {pageFile, "title: T\nkind: topic\n<P>", {"3: no line '---' between header and body"}},
    {pageFile, "", {"1: no line '---' between header and body"}},
    {pageFile,
     "title T\ncolour: red\nkind: topic\nkind: entry\nsummary: S\n---\n",
     {"1:1: not a header line 'name: value'", "2:1: unknown header field 'colour'",
      "4:1: header field 'kind' stands twice",
      "6: header field 'title' is missing; write a line 'title: …'"}},
    {pageFile,
     "title:\nkind: page\norder: first\nyear: now\nsummary: S\n---\n",
     {"1: header field 'title' is empty", "2:7: unknown kind 'page'", "3:8: not a number: 'first'",
      "4:7: not a number: 'now'"}},
    {pageFile, "title: T\nsummary: S\ntopic: 400000\n---\n", {"3:8: only an entry has a topic"}},
    {pageFile,
     "title: " + std::string(108, 'x') + "\nsummary: S\n---\n",
     {"1:8: title has 108 bytes, at most 107 fit"}},
    {"pages/uses/40001.md",
     "title: " + std::string(60, 'x') + "\nkind: entry\ntopic: 400000\n---\n",
     {"1:8: title has 60 bytes, at most 59 fit"}},
    {"start.md", "title: T\nkind: start\n---\n", {"2:1: unknown header field 'kind'"}},
    // Page numbers.
    {"pages/uses/1000000.md", topicHeader, {"1: file name is not a page number: '1000000'"}},
    {"pages/uses/0400010.md", topicHeader, {"1: file name is not a page number: '0400010'"}},
    {"pages/uses/intro.md",
     topicHeader,
     {"1: file name is not a page number: 'intro'; name it 409000-intro.md"}},
    {"pages/uses/410010.md",
     topicHeader,
     {"1: the number 410010 is taken already, by pages/elemcomp/410010.md; take 409000"}},
    {"pages/uses/400000.md",
     "title: T\nkind: topic\nsummary: S\n---\n",
     {"1: page 400000 must be of kind 'start'"}},
    {"pages/uses/400001.md",
     "title: T\nkind: start\n---\n",
     {"1: the start page of this section is 400000, not 400001"}},
    {"pages/uses/30001.md",
     "title: T\nkind: entry\ntopic: 400000\n---\n",
     {"1: entry 30001 belongs to no title list"}},
    {"pages/uses/40000.md",
     "title: T\nkind: entry\ntopic: 400000\n---\n",
     {"1: entry 40000 belongs to no title list"}},
    {"pages/uses/40001.md",
     "title: T\nkind: entry\ntopic: 410010\n---\n",
     {"3:8: section 'uses' has no topic 410010"}},
    {"pages/elemcomp/10002.md",
     "title: T\nkind: entry\ntopic: 10001\n---\n",
     {"3:8: section 'elemcomp' has no topic 10001"}},
    {"pages/elemcomp/10002.md",
     "title: T\nkind: entry\n---\n",
     {"3: header field 'topic' is missing; write a line 'topic: …'"}},
    {"families.txt",
     "# families\n\nΑλκάλια | Αέρια\nΑλκάλια | Αέρια |\nΑλάτια | Αέρια | Τίποτε.\n",
     {"3: not a line 'family | topic | uses'", "4: not a line 'family | topic | uses'",
      "5: no family of elements is named 'Αλάτια'"}},
    // Marks in the text.
    {pageFile,
     topicHeader + "[[ήλιο]]\n{{date}}\n{{title}}\n{{data\n",
     {"4:1: no glossary term is called 'ήλιο'; write it in the folder 'glossary': a line '# ήλιο', and its "
      "text below",
      "5:1: unknown mark '{{date}}'", "6:1: unknown mark '{{title}}'", "7: '{{' is not closed on its line"}},
    {"templates/page.html",
     "{{title}}{{section}}\n{{body}}\n[[helium00|He\n[[helium00]]\n[[helium00| ]]\n"
     "[[helium00|a [[helium00|b]]\n~ [[helium00|H]]\n[[ήλιο|a]]\n",
     {"3: '[[' is not closed on its line", "3: no glossary term has the key 'helium00'",
      "4: '[[' without '|'", "5: a glossary link without words", "5: no glossary term has the key 'helium00'",
      "6: '[[' inside a glossary link", "6: no glossary term has the key 'helium00'",
      "7: '~' would be taken for a glossary link", "7: no glossary term has the key 'helium00'",
      "8: no glossary term has the key 'ήλιο'"}},
    {pageFile,
     topicHeader + "{{video none}}\n<P>{{video none}}\n{{video a\\b}}\n",
     {"4:9: no video is named 'none'; put the file into the folder 'videos'",
      "5:4: '{{video none}}' is not '{{video NAME}}' or '{{molecule NAME}}' on a line of its own",
      "6:9: '{{video a\\b}}' is not '{{video NAME}}' or '{{molecule NAME}}' on a line of its own"}},
    {pageFile,
     topicHeader + "<IMG SRC=\"{{data}}images\\none.png\">\n<IMG SRC={{data}}images/none.gif>\n",
     {"4:19: the data folder has no file 'images\\none.png'",
      "5:18: the data folder has no file 'images/none.gif'"}},
    {"pages/struct/370010.md",
     topicHeader + "{{molecule none}}\n{{molecule water}}\n",
     {"4:12: no molecule is named 'none'; put the file into the folder 'molecules'",
      "5:12: a second molecule on the page"}},
    {"pages/struct/370010.md",
     topicHeader + "{{molecule a\\b}}\n",
     {"molecules/water.mol:1: warning: no page uses this molecule",
      "4:12: '{{molecule a\\b}}' is not '{{video NAME}}' or '{{molecule NAME}}' on a line of its own"}},
    // What would take all of the stack.
    {pageFile,
     topicHeader + std::string(300000, '>') + "\n\n" + repeated(20000, "::: fact\n") +
         repeated(20000, ":::\n"),
     {"4: boxes, lists, quotations or emphasis inside of too many others",
      "22:1: boxes, lists, quotations or emphasis inside of too many others"}},
    // Tools.
    {pageFile,
     topicHeader + "{{tool clock at=\"3\" on=\"4\"}}\n{{tool shared}}\n{{tool quiz at=\"3\"}}\n",
     {"4:1: tool 'clock' has no setting 'on'; its settings: at, of", "5:1: no tool is named 'shared'",
      "6:1: the questions of a quiz stand in a box '::: quiz'",
      "6:1: tool 'quiz' has no setting 'at'; its settings: none"}},
    {pageFile,
     topicHeader + "{{tool none}}\n<P>{{tool clock}}\n{{tool clock at=3}}\n",
     {"4:1: no tool is named 'none'",
      "5:4: '{{tool clock}}' is not '{{tool NAME}}' on a line of its own, with settings as 'name=\"value\"'",
      "6:1: '{{tool clock at=3}}' is not '{{tool NAME}}' on a line of its own, with settings as "
      "'name=\"value\"'"}},
    {pageFile,
     topicHeader + "::: quiz\n+ a\n? q\n+ a\nb\n> c\n? q\n+ a\n+ b\n? q\n> c\n- a\n- b\n:::\n"
                   "::: quiz\n\n:::\n::: quiz\n? q\n",
     {"5:1: a quiz begins with a question: '? …'", "6:1: a question needs two answers or more",
      "8:1: a line of a quiz begins with '?', '-', '+', '>' or '!'",
      "10:1: a question needs one right answer: '+ …'", "13:1: a question needs one right answer: '+ …'",
      "14:1: a line of a quiz begins with '?', '-', '+', '>' or '!'", "18: a quiz without questions",
      "21:1: the box is not closed by a line ':::'", "22:1: a question needs two answers or more"}},
    {"start.md",
     "title: T\n---\n[[H|υδρογόνο]]\n{{tool clock}}\n",
     {"3: a glossary link works only on a page of a section",
      "4:1: a tool works only on a page of a section"}},
    {"help.md",
     "title: T\n---\n{{video x}}\n{{molecule water}}\n\n[a](Νερό) {{contents}}\n{{contents}}\n",
     {"3:9: a video works only on a page of a section",
      "3:9: no video is named 'x'; put the file into the folder 'videos'",
      "4:12: a molecule works only on a page of a section",
      "6:5: a link to a page works only on a page of a section", "6:11: unknown mark '{{contents}}'",
      "7:1: a list of pages works only on a page of a section"}},
    // Cards.
    {pageFile,
     topicHeader + "::: element Xx\n:::\n::: compound soap\n  colour\n: [[x\n:::\n::: class\n:::\n",
     {"4:13: no element has the symbol or name 'Xx'",
      "6:14: 'soap' is neither a compound of the data set nor a formula",
      "7:3: not a row 'name: value' of the card", "8:3: '[[' is not closed on its line",
      "10:5: no box is called 'class'"}},
    // Nothing where a name belongs.
    {pageFile,
     topicHeader + "::: element\n:::\n![a]()\n{{video}}\n\n{{class }}\n[[ ]]\n",
     {"4:12: no element has the symbol or name ''",
      "6:7: no picture is named ''; put the file into the folder 'pictures'",
      "7:10: '{{video }}' is not '{{video NAME}}' or '{{molecule NAME}}' on a line of its own",
      "9:11: no school year: ''; write Β΄ or Γ΄ Γυμνασίου, Α΄, Β΄ or Γ΄ Λυκείου",
      "10:1: a glossary link without words"}},
    // Captions and titles.
    {pageFile,
     topicHeader + "![a](none.png \"$a\")\n{{video x \"b}}\n{{video y \"c [[d\"}}\n::: fact e [[f\n:::\n",
     {"4:6: no picture is named 'none.png'; put the file into the folder 'pictures'",
      "5:9: no video is named 'x'; put the file into the folder 'videos'",
      "5:11: the caption of the film has no '\"' at its end",
      "6:9: no video is named 'y'; put the file into the folder 'videos'",
      "6:14: '[[' is not closed on its line", "7:12: '[[' is not closed on its line"}},
    // Links.
    {pageFile,
     topicHeader + "[a]() [b](c\n\n[d](Start of react) [e](Διπλή)\n",
     {"4:3: a link without an address", "4:9: the address of the link is not closed on its line",
      "6:25: no page is called 'Διπλή'"}},
    // Names that are nearly right.
    {pageFile,
     "titel: T\nsummary: S\n---\n{{tool clok}}\n",
     {"1:1: unknown header field 'titel'; did you mean 'title'?",
      "3: header field 'title' is missing; write a line 'title: …'",
      "4:1: no tool is named 'clok'; did you mean 'clock'?"}},
    {"pages/uses/400010.md",
     "title: T\nsummary: S\n---\n[[\xCF\x85\xCE\xB4\xCF\x81\xCE\xBF\xCE\xB3\xCE\xBF\xCE\xBD\xCE\xBF]] "
     "[a](Nero)\n"
     "\n[b](Start of use)\n\n![c](atom.png)\n\n::: quizz\n:::\n\n# H\n\n$K_{a$\n",
     {"4:18: no page is called 'Nero'",
      "6:5: no page is called 'Start of use'; did you mean 'Start of uses'?",
      "8:6: no picture is named 'atom.png'; put the file into the folder 'pictures'",
      "10:5: no box is called 'quizz'; did you mean 'quiz'?",
      "13:1: headings begin with '##'; the page's title stands in its head",
      "15:1: formula 'K_{a': '{' is not closed"}},
    {pageFile,
     topicHeader + "{{video x}}\n{{molecule wter}}\n<IMG SRC={{data}}mol\\watr.mol>\n",
     {"4:9: no video is named 'x'; put the file into the folder 'videos'",
      "5:12: no molecule is named 'wter'; did you mean 'water'?",
      "6:18: the data folder has no file 'mol\\watr.mol'; did you mean 'mol\\water.mol'?"}},
    // What text may hold.
    {pageFile,
     "title: H\xE2\x82\x82O\nsummary: \xE2\x86\x92\xE2\x86\x92\n---\n",
     {"1:9: not in code page 1253: '\xE2\x82\x82' (U+2082); write '2' instead",
      "2:10: not in code page 1253: '\xE2\x86\x92' (U+2192); write '->' instead"}},
    {pageFile,
     topicHeader + "\xE1\n\x05..\n\xC2\x81\n" + std::string(19997, 'x') + "\n",
     {"4:1: not UTF-8; save the file as UTF-8", "5:1: control character U+0005; leave it out",
      "6:1: control character U+0081; leave it out", "7: line has 20001 bytes, at most 20000 are allowed"}},
    {"style.css",
     "P { }\n/* \xE2\x82\x82 */\n",
     {"2:4: not in code page 1253: '\xE2\x82\x82' (U+2082); write '2' instead"}},
    {"glossary/hydrogen.md",
     "",
     {"pages/elemcomp/410010.md:5:4: no glossary term is called 'υδρογόνο'; write it in the folder "
      "'glossary': a line '# υδρογόνο', and its text below"}},
    {"glossary/hydrogen.md",
     "Αέριο\n# υδρογόνο\nabcd\n\n# |\nabcde\n",
     {"1: a term begins with a line '# NAME | FORM | FORM'",
      "2: definition is missing or too short to be shown", "5: a term without a name",
      "5: warning: no page uses this term"}},
    {"glossary/hydrogen.md",
     "\n# " + std::string(49, 'H') + " | υδρογόνο\nok\n\n" + std::string(4998, 'x') + "\n",
     {"2: line is longer than 4997 bytes", "2: term is longer than 48 bytes"}},
    {"glossary/more.md",
     "# ήλιο | Υδρογονο\nΤο δεύτερο στοιχείο.\n",
     {"1: another term is called 'Υδρογονο' too, in glossary/hydrogen.md:1",
      "1: warning: no page uses this term"}},
    {"words/terminology.txt",
     "# words\n\nμίγμα\nαέριο | ατμός\nστοιχείο | \n",
     {"3: not a line 'wrong | right'", "5: not a line 'wrong | right'"}},
    // Files.
    {"pages/iron/1.md", "", {"pages/iron:1: no section is named 'iron'"}},
    {"pages/struc/1.md", "", {"pages/struc:1: no section is named 'struc'; did you mean 'struct'?"}},
    {"pictures/my atom.png",
     samplePng,
     {"1: 'images\\my atom.png' has characters other than a-z, 0-9, '.', '-' and '_'",
      "1: warning: no page uses this picture"}},
    {"templates/page.html",
     "<HTML>{{titel}}\n",
     {"1: placeholder '{{body}}' is missing", "1: placeholder '{{section}}' is missing",
      "1: placeholder '{{title}}' is missing"}},
    {"templates/page.html", "{{title}}{{section}}\n<TD>{{body}}\n{{foot}}\n", {"3: unknown mark '{{foot}}'"}},
    {moleculeFile, "{{title}}{{section}}\n\n{{body}}\n", {"1: placeholder '{{molfile}}' is missing"}},
    // HTML.
    {pageFile,
     topicHeader + "<TABLE><TR><TD>\n<P>SO<SUB>4</SUP>\n<B>x</TD>\n<P CLASS=\"c>d\">y</I>\n",
     {"4:1: <TABLE> is not closed; write '</TABLE>' where it ends",
      "5:12: </SUP> does not close <SUB>; write '</SUB>' instead",
      "6:1: <B> is not closed; write '</B>' where it ends", "7:17: </I> closes nothing"}},
    {pageFile,
     topicHeader +
         "<!-- <B>\n</I> --><BR>\n<SCRIPT>if (a<b) c=\"</B>\";\n</script><UL><LI>a<LI>b</UL>\n<DIV\nID=x>\n",
     {"8: <DIV> is not closed; write '</DIV>' where it ends"}},
    // Pictures and molecules.
    {"pictures/atom.png",
     "<svg/>",
     {"1: this is no png file, whatever its name says; save it again as png",
      "1: warning: no page uses this picture"}},
    {"pictures/atom.svg",
     "\x89PNG",
     {"1: this is no svg file, whatever its name says; save it again as svg",
      "1: warning: no page uses this picture"}},
    {"molecules/water.mol",
     "water\n\n\nx\n",
     {"4: no molecule can be read here: the fourth line must tell how many atoms and bonds there are; save "
      "it again as MDL molfile (V2000)"}},
    {"molecules/water.mol",
     "water\r\n\r\n\r\n  3  2  0  0  0  0  0  0  0  0999 V2000\r\n",
     {"4: the molecule is cut short: it should have 3 atoms and 2 bonds"}},
    // The layout of molecule pages.
    {moleculeFile, moleculeTemplate(embedLines + "\ntrue\n</TD>\n", 13), {noEmbed, noTrue}},
    {moleculeFile,
     moleculeTemplate("<EMBED SRC=\"{{molfile}}\" WIDTH=340 HEIGHT=300\n\nS=true>\n</TD>\n"),
     {noEmbed, noTrue}},
    {moleculeFile, moleculeTemplate(embedLines + "\na=true b=true\n</TD>\n"), {noTrue}},
    {moleculeFile,
     moleculeTemplate(embedLines + "</TD>\ntrue\n </TD>\n"),
     {"pages/struct/370010.md:1: no line after line 15 of the finished page begins with '</TD>'"}},
    {moleculeFile,
     moleculeTemplate("<EMBED TYPE=\"mol\" SRC=\"{{molfile}}\" WIDTH=340 HEIGHT=290\n\ntrue\n</TD>\n"),
     {"13: the molecule file must be the first text in quotes on its line"}},
};

TEST(BadSources, AreReportedByLine) {
    for (const auto& [file, text, messages] : badSources) {
        ContentFolder content;
        content.write("tools/clock/face.js", "");
        content.write("tools/clock/settings.txt", "of\nat\n");
        content.write("tools/quiz/face.js", "");
        content.write(file, text);
        EXPECT_FALSE(content.compile());
        Messages expected;
        for (const std::string& message : messages) {
            const bool ofThisFile = message.front() >= '0' && message.front() <= '9';
            expected.push_back(ofThisFile ? std::string(file) + ':' + message : message);
        }
        EXPECT_EQ(content.messages, expected) << file << ":\n" << text.substr(0, 200);
    }
}

TEST(DataSets, OfOneNumberAreReported) {
    ContentFolder content;
    const std::string text = "number: 1\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\n";
    content.write("datasets/gases.data", text);
    content.write("datasets/salts.data", text);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages, Messages{"datasets/salts.data:1: another data set has the number 1 too"});
}

TEST(MissingSources, AreReported) {
    const std::pair<const char*, std::string> cases[] = {
        {"start.md", "start.md:1: missing"},
        {"templates/page.html", "templates/page.html:1: missing"},
        {"templates/molecule.html", "templates/molecule.html:1: missing"},
        {"molecules",
         "pages/struct/370010.md:4:12: no molecule is named 'water'; put the file into the folder "
         "'molecules'"},
        {"style.css", "templates/page.html:3: the data folder has no file 'style\\kalyxo.css'"},
        {"glossary",
         "pages/elemcomp/410010.md:5:4: no glossary term is called 'υδρογόνο'; write it in the folder "
         "'glossary': a line '# υδρογόνο', and its text below"},
        {"pages/uses",
         "pages/uses/400000.md:1: start page of the section missing; make this file, with the lines 'title: "
         "Η χημεία στην πράξη', '---' and a text"},
    };
    for (const auto& [missing, message] : cases) {
        ContentFolder content;
        content.remove(missing);
        EXPECT_FALSE(content.compile());
        EXPECT_EQ(content.messages, Messages{message}) << missing;
    }
}

TEST(SharedTitleList, RefusesOneEntryWithTwoTitles) {
    ContentFolder content;
    const std::string header = "kind: entry\ntopic: 320000\n---\n";
    content.write("pages/history/740005.md", "title: Lavoisier\n" + header);
    content.write("pages/history/760005.md", "title: Lavoisier\n" + header);
    EXPECT_TRUE(content.compile());
    content.write("pages/history/770005.md", "title: Curie\n" + header);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages,
              Messages{"pages/history/770005.md:1:8: entry 5 of 'history.ttl' has another title in "
                       "pages/history/740005.md"});
}

}  // namespace
