#include "tools/contentc/WordIndex.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/text/CodePage1253.h"
#include "tests/tools/contentc/ContentFolder.h"
#include "tools/contentc/source/PageText.h"

namespace {

using Words = std::vector<std::string>;

std::string greek(std::string_view utf8) { return platform::fromUtf8(utf8); }

/// The words of a body, in UTF-8 between blanks.
std::string wordsOfBody(std::string_view utf8) {
    std::string joined;
    for (const std::string& word : contentc::wordsOf(contentc::visibleText({{greek(utf8), {}}})))
        joined += (joined.empty() ? "" : " ") + platform::toUtf8(word);
    return joined;
}

TEST(PageText, WordsAreWhatTheReaderSees) {
    const struct {
        const char* body;
        const char* words;
    } cases[] = {
        {"<P CLASS=\"lead\">Το άτομο</P>", "άτομο το"},
        {"ένα<BR>δύο<TD>τρία", "ένα δύο τρία"},
        {"H<SUB>2</SUB>O H&#x2082;S <B>ύ</B>δωρ", "h2o h2s ύδωρ"},
        {"Na<SUP>+</SUP> Cl<SUP>&minus;</SUP>", "cl na"},
        {"[[acid0000|οξύ]] [[acid0000|των οξέων]]!", "οξέων οξύ των"},
        {"{{video melting}} {{data}}images", "images"},
        {"<!-- άλλο > --> &nbsp;α&nbsp;βγ&deg;δε & ζη &x", "βγ δε ζη"},
        {"<IMG ALT=\"κείμενο\" SRC=\"{{data}}x.png\">", ""},
        {"2NaCl (NH<SUB>4</SUB>)<SUB>2</SUB>SO<SUB>4</SUB> 18ος", "nacl nh4 so4 ος"},
        {"2 a 1,008 20 &#913;&#946; &#xffffffff;&#99999999999;", "αβ"},
        {"oxyg&egrave;ne &Aring;ngstr&#246;m Dvo&#345;&aacute;k", "angstrom dvorak oxygene"},
        {"<NAV><A HREF=\"x\">άλλη</A></NAV>αυτή", "αυτή"},
        {"<unclosed", ""},
        {"{{unclosed", ""},
        {"[[unclosed]] ab", "ab unclosed"},
    };
    for (const auto& [body, words] : cases) EXPECT_EQ(wordsOfBody(body), words) << body;
}

TEST(PageText, WordsAreNormalized) {
    const struct {
        const char* word;
        const char* normalized;
    } cases[] = {
        {"ΧΗΜΕΙΑΣ", "χημειας"},     {"Άνθρακας", "άνθρακας"}, {"μόριό", "μόριο"}, {"σωματίδιά", "σωματίδια"},
        {"πρωτεΐνες", "πρωτεΐνες"}, {"NaCl", "nacl"},         {"σ", "ς"}};
    for (const auto& [word, normalized] : cases)
        EXPECT_EQ(platform::toUtf8(contentc::normalizedWord(greek(word))), normalized) << word;
}

TEST(WordIndex, FormsAreGroupedByStemUnlessTheAuthorSaysOtherwise) {
    std::set<std::string> words;
    for (const char* word : {"ομάδα", "ομάδας", "νάτριο", "νατρίου", "ήλιο", "ήλιος", "h2o"})
        words.insert(greek(word));
    const auto group = [](std::initializer_list<const char*> forms) {
        Words inGreek;
        for (const char* form : forms) inGreek.push_back(greek(form));
        return inGreek;
    };
    const auto groups = contentc::groupForms(words, {group({"νάτριο", "νατρίου"}), group({"ήλιο", "ηλίου"})});
    const std::vector<Words> expected{group({"h2o"}), group({"ήλιο"}), group({"ήλιος"}),
                                      group({"νάτριο", "νατρίου"}), group({"ομάδα", "ομάδας"})};
    EXPECT_EQ(groups, expected);
}

class WordFiles : public testing::Test {
  protected:
    WordFiles() {
        // A small vocabulary: what the sample's other pages say is left out.
        content_.write("words/stop.txt",
                       "# not worth finding\nStart of ΤΟ\n\nreact struct source uses history elemcomp "
                       "concept\nπρώτο στοιχείο\n");
        content_.write("words/forms.txt", "νερό νερού\n");
    }

    ContentFolder content_;
};

TEST_F(WordFiles, HoldEachWordWithItsPlaces) {
    content_.write("pages/uses/400010.md", "title: Το νερό\nsummary: S\n---\n<P>αέρια, νερό</P>\n");
    content_.write("pages/uses/40001.md", "title: Νερού\nkind: entry\ntopic: 400010\n---\n");
    Words words;
    for (const char* word : {"h2o", "αέρια", "νερού", "νερό", "υδρογόνο"}) words.push_back(greek(word));
    EXPECT_EQ(formats::decodeWordIndex(content_.compiled("words.ndx")), words);

    const std::string dat = content_.compiled("words.dat");
    std::vector<formats::OccurrenceRecord> found;
    for (std::size_t at = 0; at < dat.size(); at += formats::occurrenceRecordSize)
        found.push_back(*formats::decodeOccurrence(std::string_view(dat).substr(at)));
    const std::vector<formats::OccurrenceRecord> expected{{"h2o", 370010, 0, 2},
                                                          {greek("νερό"), 370010, 0, 2},
                                                          {greek("αέρια"), 400010, 0, 4},
                                                          {greek("νερό"), 400010, 0, 4},
                                                          {greek("νερού"), 400010, 40001, 4},
                                                          {greek("αέρια"), 410010, 0, 6},
                                                          {greek("υδρογόνο"), 410010, 0, 6},
                                                          {greek("υδρογόνο"), 410010, 10001, 6}};
    EXPECT_EQ(found, expected);

    const std::vector<formats::AlternativeRecord> forms{{1, greek("νερού")}, {1, greek("νερό")}};
    EXPECT_EQ(content_.compiled("words.alt"), formats::encodeAlternatives(forms));
    const std::vector<formats::FirstLetterRecord> letters{
        {'h', 0}, {greek("α")[0], 1}, {greek("ν")[0], 2}, {greek("υ")[0], 4}};
    EXPECT_EQ(formats::decodeFirstLetters(content_.compiled("words.pr1")), letters);
}

TEST_F(WordFiles, PagesAreFoundByTheTermsTheyLinkAndByWordsThatAreNotShown) {
    content_.write("pages/elemcomp/410010.md",
                   "title: Αέρια\nsummary: Μ.\nsearch: Boyle\n---\n[[υδρογόνο|οξύ]]\n");
    content_.write("glossary/acid.md", "# Οξύ | οξέος\nΔίνει πρωτόνια σε νερό.\n");
    Words words;
    for (const char* word :
         {"boyle", "h2o", "αέρια", "δίνει", "νερό", "οξέος", "οξύ", "πρωτόνια", "σε", "υδρογόνο"})
        words.push_back(greek(word));
    EXPECT_EQ(formats::decodeWordIndex(content_.compiled("words.ndx")), words);
    const std::string dat = content_.compiled("words.dat");
    std::vector<std::int32_t> pages;
    for (std::size_t at = 0; at < dat.size(); at += formats::occurrenceRecordSize) {
        const auto record = *formats::decodeOccurrence(std::string_view(dat).substr(at));
        if (record.word == greek("νερό")) pages.push_back(record.pageId);
    }
    EXPECT_EQ(pages, std::vector<std::int32_t>{370010})
        << "the page about water, and not all that link 'acid'";
}

TEST_F(WordFiles, WordsThatDoNotFitAreLeftOut) {
    const std::string fits(formats::maxIndexedWord, 'x');
    content_.write("pages/uses/400010.md", "title: T\nsummary: S\n---\n" + fits + ' ' + fits + "x\n");
    content_.write("words/forms.txt", fits + " h2o υδρογόνο\n");
    const Words words = formats::decodeWordIndex(content_.compiled("words.ndx"));
    EXPECT_EQ(std::ranges::count(words, fits), 1);
    EXPECT_EQ(std::ranges::count(words, fits + 'x'), 0);
    EXPECT_EQ(content_.compiled("words.alt").size(), 2 * formats::alternativeRecordSize);
}

TEST_F(WordFiles, WordInTwoGroupsIsReported) {
    content_.write("words/forms.txt", "# forms\nνερό νερού\n\nάλας Νερό\n");
    EXPECT_FALSE(content_.compile());
    EXPECT_EQ(content_.messages, Words{"words/forms.txt:4: 'νερό' stands twice"});
}

}  // namespace
