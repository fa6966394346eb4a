#include "tools/contentc/source/Diagnostics.h"

#include <gtest/gtest.h>

#include "tools/contentc/source/NearestName.h"

namespace {

using contentc::Language;

constexpr contentc::Message unknownWord{"unknown word '{1}'", "άγνωστη λέξη «{1}»"};

TEST(Diagnostics, AreToldInTwoLanguagesWithPlaceAndSuggestion) {
    contentc::Diagnostics found;
    found.error({"a.md", 2, 3}, unknownWord, {"νερο"}).suggestNearest("νερο", {"οξύ", "νερό"});
    found.warning({"a.md"}, unknownWord, {"{1}"}).suggestNearest("{1}", {"οξύ"});
    const auto sorted = found.sorted();
    ASSERT_EQ(sorted.size(), 2U);
    EXPECT_EQ(toLine(sorted[0], Language::greek), "a.md:1: προσοχή: άγνωστη λέξη «{1}»");
    EXPECT_EQ(toLine(sorted[1], Language::english), "a.md:2:3: unknown word 'νερο'; did you mean 'νερό'?");
    EXPECT_EQ(toLine(sorted[1], Language::greek), "a.md:2:3: άγνωστη λέξη «νερο»· μήπως εννοείς «νερό»;");
}

TEST(NearestName, IsTheOneProbablyMeant) {
    const std::vector<std::string> names{"Αλκάλια", "Άλατα", "Οξέα", "ion", "Οξείδια"};
    const struct {
        const char* wanted;
        const char* nearest;
    } cases[] = {{"αλκαλια", "Αλκάλια"}, {"αλτα", "Άλατα"}, {"οξεα", "Οξέα"},    {"οξιδια", "Οξείδια"},
                 {"ino", "ion"},         {"io", "ion"},     {"Βάσεις", nullptr}, {"", nullptr}};
    for (const auto& [wanted, nearest] : cases) {
        const auto found = contentc::nearestName(wanted, names);
        EXPECT_EQ(found, nearest ? std::optional<std::string>(nearest) : std::nullopt) << wanted;
    }
}

}  // namespace
