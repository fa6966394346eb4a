#include <gtest/gtest.h>

#include "tools/drive/script/ComponentValues.h"
#include "tools/drive/script/TraceJson.h"

namespace drive {
namespace {

using namespace platform;

TEST(Answers, OneLineWhateverTheScriptHeld) {
    EXPECT_EQ(toLine({{"cmd", "a\nb"}, {"ok", false}}), R"({"cmd":"a\nb","ok":false})");
    EXPECT_NE(toLine({{"cmd", "bad \xFF byte"}}).find("bad \xEF\xBF\xBD byte"), std::string::npos);
}

using Types = std::vector<TypeCode>;
using Words = std::vector<std::string>;

TEST(Answers, ComponentArgumentsThatDoNotFit) {
    const std::vector<std::pair<Types, Words>> wrong = {
        {{}, {"1"}},
        {{TypeCode::i2}, {}},
        {{TypeCode::i2}, {"32768"}},
        {{TypeCode::i4}, {"2147483648"}},
        {{TypeCode::i4}, {"1.5"}},
        {{TypeCode::i4}, {""}},
        {{TypeCode::boolean}, {"yes"}},
        {{TypeCode::booleanRef}, {"1"}},
        {{TypeCode::dispatch}, {"x"}},
    };
    for (const auto& [types, words] : wrong) EXPECT_FALSE(componentArguments(types, words));
}

TEST(Answers, AReferenceTellsWhatItBecame) {
    const auto arguments = componentArguments(Types{TypeCode::booleanRef}, Words{"false"});
    ASSERT_TRUE(arguments);
    EXPECT_EQ(variantJson(arguments->values[0]), Json(false));
    **arguments->values[0].get<bool*>() = true;
    EXPECT_EQ(variantJson(arguments->values[0]), Json(true));
}

}  // namespace
}  // namespace drive
