#include <gtest/gtest.h>

#include "tests/contentc/ContentFolder.h"

namespace {

using Messages = std::vector<std::string>;

const std::string kTopicHeader = "title: T\nkind: topic\n---\n";

/// One file of the sources with a text that is wrong, and all that there is to say about it.
struct BadSource {
    const char* file;
    std::string text;
    Messages messages;
};

void PrintTo(const BadSource& bad, std::ostream* stream) {
    *stream << bad.file << ":\n" << bad.text.substr(0, 200);
}

class BadSources : public testing::TestWithParam<BadSource> {};

TEST_P(BadSources, AreReportedByLine) {
    ContentFolder content;
    content.write(GetParam().file, GetParam().text);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages, GetParam().messages);
}

INSTANTIATE_TEST_SUITE_P(
    DataSets, BadSources,
    testing::Values(
        BadSource{"datasets/gases.data",
                  "number: 1\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\nα\t1\nβ\tδύο\nγ\n",
                  {"datasets/gases.data:7: the row of 'β' has words where a number belongs",
                   "datasets/gases.data:8: the row of 'γ' has not as many cells as there are columns"}},
        BadSource{"datasets/gases.data",
                  "number: 0\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\n",
                  {"datasets/gases.data:1: no field with a right value",
                   "datasets/gases.data:5: the head needs 'number', 'title', a first column of words, "
                   "a column of numbers, and a 'graph' of such"}},
        BadSource{"datasets/gases.txt", "", {"datasets/gases.txt:1: not a *.data file"}}));

TEST(DataSets, OfOneNumberAreReported) {
    ContentFolder content;
    const std::string text = "number: 1\ntitle: T\ncolumn: text | N\ncolumn: number | V\n---\n";
    content.write("datasets/gases.data", text);
    content.write("datasets/salts.data", text);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages, Messages{"datasets/salts.data:1: another data set has the number 1 too"});
}

INSTANTIATE_TEST_SUITE_P(
    Headers, BadSources,
    testing::Values(BadSource{"pages/uses/400010.page",
                              "title: T\nkind: topic\n<P>",
                              {"pages/uses/400010.page:3: no line '---' between header and body"}},
                    BadSource{"pages/uses/400010.page",
                              "",
                              {"pages/uses/400010.page:1: no line '---' between header and body"}},
                    BadSource{"pages/uses/400010.page",
                              "title T\ncolour: red\nkind: topic\nkind: entry\n---\n",
                              {"pages/uses/400010.page:1: not a header line 'name: value'",
                               "pages/uses/400010.page:2: unknown header field 'colour'",
                               "pages/uses/400010.page:4: header field 'kind' stands twice",
                               "pages/uses/400010.page:5: header field 'title' is missing"}},
                    BadSource{"pages/uses/400010.page",
                              "title:\nkind: page\norder: first\ntemplate: film\n---\n",
                              {"pages/uses/400010.page:1: header field 'title' is empty",
                               "pages/uses/400010.page:2: unknown kind 'page'",
                               "pages/uses/400010.page:3: not a number: 'first'",
                               "pages/uses/400010.page:4: unknown template 'film'"}},
                    BadSource{"pages/uses/400010.page",
                              "title: T\nkind: topic\ntopic: 400000\n---\n",
                              {"pages/uses/400010.page:3: only an entry has a topic"}},
                    BadSource{"pages/uses/400010.page",
                              "title: " + std::string(108, 'x') + "\nkind: topic\n---\n",
                              {"pages/uses/400010.page:1: title has 108 bytes, at most 107 fit"}},
                    BadSource{"pages/uses/40001.page",
                              "title: " + std::string(60, 'x') + "\nkind: entry\ntopic: 400000\n---\n",
                              {"pages/uses/40001.page:1: title has 60 bytes, at most 59 fit"}},
                    BadSource{"start.page",
                              "title: T\nkind: start\n---\n",
                              {"start.page:2: unknown header field 'kind'"}}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, BadSources,
    testing::Values(
        BadSource{"pages/uses/1000000.page",
                  kTopicHeader,
                  {"pages/uses/1000000.page:1: file name is not a page number: '1000000'"}},
        BadSource{"pages/uses/0400010.page",
                  kTopicHeader,
                  {"pages/uses/0400010.page:1: file name is not a page number: '0400010'"}},
        BadSource{"pages/uses/intro.page",
                  kTopicHeader,
                  {"pages/uses/intro.page:1: file name is not a page number: 'intro'"}},
        BadSource{"pages/uses/410010.page",
                  kTopicHeader,
                  {"pages/uses/410010.page:1: '41\\0010' is already made from pages/elemcomp/410010.page"}},
        BadSource{"pages/uses/400000.page",
                  kTopicHeader,
                  {"pages/uses/400000.page:1: page 400000 must be of kind 'start'"}},
        BadSource{"pages/uses/400001.page",
                  "title: T\nkind: start\n---\n",
                  {"pages/uses/400001.page:1: the start page of this section is 400000, not 400001"}},
        BadSource{"pages/uses/30001.page",
                  "title: T\nkind: entry\ntopic: 400000\n---\n",
                  {"pages/uses/30001.page:1: entry 30001 belongs to no title list"}},
        BadSource{"pages/uses/40000.page",
                  "title: T\nkind: entry\ntopic: 400000\n---\n",
                  {"pages/uses/40000.page:1: entry 40000 belongs to no title list"}},
        BadSource{"pages/uses/40001.page",
                  "title: T\nkind: entry\ntopic: 410010\n---\n",
                  {"pages/uses/40001.page:3: section 'uses' has no topic 410010"}},
        BadSource{"pages/elemcomp/10002.page",
                  "title: T\nkind: entry\ntopic: 10001\n---\n",
                  {"pages/elemcomp/10002.page:3: section 'elemcomp' has no topic 10001"}},
        BadSource{"pages/elemcomp/10002.page",
                  "title: T\nkind: entry\n---\n",
                  {"pages/elemcomp/10002.page:3: header field 'topic' is missing"}},
        BadSource{
            "elements.txt",
            "# keys\n\n1 10001\n2 400000\n119 410010\n1 410010\n3\n4 410010 x\n",
            {"elements.txt:4: section 'elemcomp' has no page 400000",
             "elements.txt:5: not a line 'atomic-number page-id'", "elements.txt:6: element 1 stands twice",
             "elements.txt:7: not a line 'atomic-number page-id'",
             "elements.txt:8: not a line 'atomic-number page-id'"}}));

INSTANTIATE_TEST_SUITE_P(
    Marks, BadSources,
    testing::Values(
        BadSource{"pages/uses/400010.page",
                  kTopicHeader + "ok\n[[hydrogen|H\n[[hydrogen]]\n[[hydroge|H]]\n[[Hydrogen|H]]\n",
                  {"pages/uses/400010.page:5: '[[' is not closed on its line",
                   "pages/uses/400010.page:6: '[[' without '|'",
                   "pages/uses/400010.page:7: glossary key 'hydroge' is not 8 characters of a-z and 0-9",
                   "pages/uses/400010.page:8: glossary key 'Hydrogen' is not 8 characters of a-z and 0-9"}},
        BadSource{"pages/uses/400010.page",
                  kTopicHeader + "[[helium00|He]]\n[[hydrogen| ]]\n[[hydrogen|a [[hydrogen|b]]\n",
                  {"pages/uses/400010.page:4: no glossary term has the key 'helium00'",
                   "pages/uses/400010.page:5: a glossary link without words",
                   "pages/uses/400010.page:6: '[[' inside a glossary link"}},
        BadSource{"pages/uses/400010.page",
                  kTopicHeader + "~ [[hydrogen|H]]\n~Graph\n[[hydrogen|a~b]]\n",
                  {"pages/uses/400010.page:4: '~' would be taken for a glossary link",
                   "pages/uses/400010.page:5: '~' would be taken for a glossary link",
                   "pages/uses/400010.page:6: '~' would be taken for a glossary link"}},
        BadSource{"pages/uses/400010.page",
                  kTopicHeader + "{{date}}\n{{title}}\n{{data\n",
                  {"pages/uses/400010.page:4: unknown mark '{{date}}'",
                   "pages/uses/400010.page:5: unknown mark '{{title}}'",
                   "pages/uses/400010.page:6: '{{' is not closed on its line"}},
        BadSource{"pages/uses/400010.page",
                  kTopicHeader + "{{video none}}\n<P>{{video none}}\n{{molecule water}}\n{{video a\\b}}\n",
                  {"pages/uses/400010.page:4: no video is named 'none'",
                   "pages/uses/400010.page:5: '{{video none}}' is not '{{video NAME}}' or '{{molecule "
                   "NAME}}' on a line of its own",
                   "pages/uses/400010.page:6: a molecule needs the header line 'template: molecule'",
                   "pages/uses/400010.page:7: '{{video a\\b}}' is not '{{video NAME}}' or '{{molecule "
                   "NAME}}' on a line of its own"}},
        BadSource{
            "pages/uses/400010.page",
            kTopicHeader + "<IMG SRC=\"{{data}}images\\none.png\">\n<IMG SRC={{data}}images/none.gif>\n",
            {"pages/uses/400010.page:4: the data folder has no file 'images\\none.png'",
             "pages/uses/400010.page:5: the data folder has no file 'images/none.gif'"}},
        BadSource{"pages/struct/370010.page",
                  "title: T\nkind: topic\ntemplate: molecule\n---\n{{molecule none}}\n{{molecule water}}\n",
                  {"pages/struct/370010.page:5: no molecule is named 'none'",
                   "pages/struct/370010.page:6: a second molecule on the page"}},
        BadSource{
            "pages/struct/370010.page",
            "title: T\nkind: topic\ntemplate: molecule\n---\n",
            {"pages/struct/370010.page:1: a page of template 'molecule' needs a line '{{molecule NAME}}'"}},
        BadSource{"start.page",
                  "title: T\n---\n[[hydrogen|H]]\n",
                  {"start.page:3: a glossary link works only on a page of a section"}}));

INSTANTIATE_TEST_SUITE_P(
    Text, BadSources,
    testing::Values(BadSource{"pages/uses/400010.page",
                              "title: H\xE2\x82\x82O\nkind: topic\n---\nok\n\xE2\x86\x92\xE2\x86\x92\n",
                              {"pages/uses/400010.page:1: not in code page 1253: '\xE2\x82\x82' (U+2082)",
                               "pages/uses/400010.page:5: not in code page 1253: '\xE2\x86\x92' (U+2192)"}},
                    BadSource{"pages/uses/400010.page",
                              kTopicHeader + "\xE1\n\x05..\n\xC2\x81\n",
                              {"pages/uses/400010.page:4: not UTF-8",
                               "pages/uses/400010.page:5: control character U+0005",
                               "pages/uses/400010.page:6: control character U+0081"}},
                    BadSource{"pages/uses/400010.page",
                              kTopicHeader + std::string(20001, 'x') + "\n",
                              {"pages/uses/400010.page:4: line has 20001 bytes, at most 20000 are allowed"}},
                    BadSource{"style.css",
                              "P { }\n/* \xE2\x82\x82 */\n",
                              {"style.css:2: not in code page 1253: '\xE2\x82\x82' (U+2082)"}},
                    BadSource{"glossary/hydrogen.term",
                              "",
                              {"glossary/hydrogen.term:1: the first line must be the term",
                               "pages/elemcomp/410010.page:5: no glossary term has the key 'hydrogen'"}},
                    BadSource{"glossary/hydrogen.term",
                              "H\nabcd\n\n",
                              {"glossary/hydrogen.term:1: definition is missing or too short to be shown"}},
                    BadSource{"glossary/hydrogen.term",
                              std::string(49, 'H') + "\nok\n" + std::string(4998, 'x') + "\n",
                              {"glossary/hydrogen.term:1: term is longer than 48 bytes",
                               "glossary/hydrogen.term:3: line is longer than 4997 bytes"}},
                    BadSource{
                        "glossary/Water.term",
                        "water\nH2O, liquid\n",
                        {"glossary/Water.term:1: glossary key 'Water' is not 8 characters of a-z and 0-9",
                         "glossary/Water.term:1: warning: no page uses this term"}}));

INSTANTIATE_TEST_SUITE_P(
    Files, BadSources,
    testing::Values(BadSource{"pages/iron/1.page", "", {"pages/iron:1: no section is named 'iron'"}},
                    BadSource{"pages/uses/400010.pag", "", {"pages/uses/400010.pag:1: not a *.page file"}},
                    BadSource{"glossary/water.txt", "", {"glossary/water.txt:1: not a *.term file"}},
                    BadSource{"pictures/atom.svg",
                              "<svg/>",
                              {"pictures/atom.svg:1: no image folder has the rendered picture 'atom.png'"}},
                    BadSource{"pictures/my atom.png",
                              "",
                              {"pictures/my atom.png:1: 'images\\my atom.png' has characters other than a-z, "
                               "0-9, '.', '-' and '_'"}},
                    BadSource{"templates/page.html",
                              "<HTML>{{titel}}\n",
                              {"templates/page.html:1: placeholder '{{body}}' is missing",
                               "templates/page.html:1: placeholder '{{section}}' is missing",
                               "templates/page.html:1: placeholder '{{title}}' is missing"}},
                    BadSource{"templates/page.html",
                              "{{title}}{{section}}\n<TD>{{body}}\n{{foot}}\n",
                              {"templates/page.html:3: unknown mark '{{foot}}'"}},
                    BadSource{"templates/molecule.html",
                              "{{title}}{{section}}\n\n{{body}}\n",
                              {"templates/molecule.html:1: placeholder '{{molfile}}' is missing"}}));

// The molecule page's lines, from the one with the EMBED on; the twelve before them are blank.
std::string moleculeTemplate(const std::string& fromLine13, int linesBefore = 12) {
    return "{{title}}{{section}}" + std::string(static_cast<std::size_t>(linesBefore), '\n') + fromLine13 +
           "{{body}}\n";
}

const std::string kEmbed = "<EMBED SRC=\"{{molfile}}\" WIDTH=340 HEIGHT=290\n";

INSTANTIATE_TEST_SUITE_P(
    MoleculeLayout, BadSources,
    testing::Values(
        BadSource{"templates/molecule.html",
                  moleculeTemplate(kEmbed + "\ntrue\n</TD>\n", 13),
                  {"templates/molecule.html:13: line 13 of the finished molecule page must hold the '<EMBED "
                   "' of the "
                   "molecule with the sizes 340 and 290",
                   "templates/molecule.html:15: line 15 of the finished molecule page must end in its only "
                   "'true'"}},
        BadSource{"templates/molecule.html",
                  moleculeTemplate("<EMBED SRC=\"{{molfile}}\" WIDTH=340 HEIGHT=300\n\nS=true>\n</TD>\n"),
                  {"templates/molecule.html:13: line 13 of the finished molecule page must hold the '<EMBED "
                   "' of the "
                   "molecule with the sizes 340 and 290",
                   "templates/molecule.html:15: line 15 of the finished molecule page must end in its only "
                   "'true'"}},
        BadSource{"templates/molecule.html",
                  moleculeTemplate(kEmbed + "\na=true b=true\n</TD>\n"),
                  {"templates/molecule.html:15: line 15 of the finished molecule page must end in its only "
                   "'true'"}},
        BadSource{
            "templates/molecule.html",
            moleculeTemplate(kEmbed + "</TD>\ntrue\n </TD>\n"),
            {"pages/struct/370010.page:1: no line after line 15 of the finished page begins with '</TD>'"}},
        BadSource{
            "templates/molecule.html",
            moleculeTemplate("<EMBED TYPE=\"mol\" SRC=\"{{molfile}}\" WIDTH=340 HEIGHT=290\n\ntrue\n</TD>\n"),
            {"templates/molecule.html:13: the molecule file must be the first text in quotes on its line"}}));

class MissingSources : public testing::TestWithParam<std::pair<const char*, Messages>> {};

TEST_P(MissingSources, AreReported) {
    ContentFolder content;
    content.remove(GetParam().first);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    All, MissingSources,
    testing::Values(
        std::pair{"start.page", Messages{"start.page:1: missing"}},
        std::pair{"elements.txt", Messages{"elements.txt:1: missing"}},
        std::pair{"templates/page.html", Messages{"templates/page.html:1: missing"}},
        std::pair{"templates/molecule.html", Messages{"templates/molecule.html:1: missing"}},
        std::pair{"molecules", Messages{"pages/struct/370010.page:5: no molecule is named 'water'"}},
        std::pair{"style.css",
                  Messages{"templates/page.html:3: the data folder has no file 'style\\kalyxo.css'"}},
        std::pair{"glossary",
                  Messages{"pages/elemcomp/410010.page:5: no glossary term has the key 'hydrogen'"}},
        std::pair{"pages/uses", Messages{"pages/uses/400000.page:1: start page of the section missing"}}));

TEST(SharedTitleList, RefusesOneEntryWithTwoTitles) {
    ContentFolder content;
    const std::string header = "kind: entry\ntopic: 320000\n---\n";
    content.write("pages/history/740005.page", "title: Lavoisier\n" + header);
    content.write("pages/history/760005.page", "title: Lavoisier\n" + header);
    EXPECT_TRUE(content.compile());
    content.write("pages/history/770005.page", "title: Curie\n" + header);
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages,
              Messages{"pages/history/770005.page:1: entry 5 of 'history.ttl' has another title in "
                       "pages/history/740005.page"});
}

}  // namespace
