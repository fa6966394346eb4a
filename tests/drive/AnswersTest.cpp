#include <gtest/gtest.h>

#include "platform/text/GreekLiteral.h"
#include "tools/drive/ControlValues.h"
#include "tools/drive/TraceJson.h"

namespace drive {
namespace {

using namespace platform;
using namespace platform::literals;

std::string gr(std::string_view literal) { return std::string(literal); }

TEST(Answers, TraceTellsEachKindOfEntry) {
    const std::vector<TraceEntry> entries = {
        TraceBox{gr("Όχι"_gr), "Kalyxo", {BoxAnswer::yes, BoxAnswer::no}, BoxAnswer::no},
        TraceCall{1035,
                  "CSelect",
                  6,
                  TraceCallKind::method,
                  "ShowItem",
                  {std::int64_t{320010}, std::int64_t{0}, false},
                  std::monostate{}},
        TraceCall{1045, "CDataAnal", 2, TraceCallKind::get, "ViewMode", {}, std::int64_t{1}},
        TraceNavigate{1025, R"(C:\Kalyxo\cache\1.htm)", 14},
        TraceRefused{"D:\\pjqbhgatomo000.htm"},
        TraceSleep{2000},
        TraceShell{"open", "notepad.exe", "a.htm", "c:\\"},
        TracePrint{"page", 2, "print-1.pdf"},
        TraceRegister{R"(C:\Kalyxo\ActiveX\kyptgk.ocx)"},
        TraceClipboard{{"text", "bitmap"}},
    };
    const Json expected = Json::parse(R"([
        {"box": {"text": "Όχι", "caption": "Kalyxo", "buttons": ["yes", "no"], "answer": "no"}},
        {"call": {"control": 1035, "class": "CSelect", "dispid": 6, "kind": "method", "name": "ShowItem",
                  "args": [320010, 0, false], "result": null}},
        {"call": {"control": 1045, "class": "CDataAnal", "dispid": 2, "kind": "get", "name": "ViewMode",
                  "args": [], "result": 1}},
        {"navigate": {"control": 1025, "url": "C:\\Kalyxo\\cache\\1.htm", "flags": 14}},
        {"refused": {"url": "D:\\pjqbhgatomo000.htm"}},
        {"sleep": 2000},
        {"shell": {"verb": "open", "file": "notepad.exe", "parameters": "a.htm", "folder": "c:\\"}},
        {"print": {"document": "page", "pages": 2, "file": "print-1.pdf"}},
        {"register": "C:\\Kalyxo\\ActiveX\\kyptgk.ocx"},
        {"clipboard": ["text", "bitmap"]}
    ])");
    EXPECT_EQ(toLine(traceJson(entries)), toLine(expected));
}

TEST(Answers, OneLineWhateverTheScriptHeld) {
    EXPECT_EQ(toLine({{"cmd", "a\nb"}, {"ok", false}}), R"({"cmd":"a\nb","ok":false})");
    EXPECT_NE(toLine({{"cmd", "bad \xFF byte"}}).find("bad \xEF\xBF\xBD byte"), std::string::npos);
}

using Types = std::vector<TypeCode>;
using Words = std::vector<std::string>;

TEST(Answers, ControlArgumentsFollowTheOperationsTypes) {
    const Types types = {TypeCode::i2,      TypeCode::i4,      TypeCode::boolean,   TypeCode::text,
                         TypeCode::variant, TypeCode::variant, TypeCode::booleanRef};
    const Words words = {"-7", "320010", "true", "Όχι", "5", "πέντε", "false"};
    const auto arguments = controlArguments(types, words);
    ASSERT_TRUE(arguments);
    const std::vector<Variant>& values = arguments->values;
    ASSERT_EQ(values.size(), words.size());
    EXPECT_EQ(*values[0].get<std::int16_t>(), -7);
    EXPECT_EQ(*values[1].get<std::int32_t>(), 320010);
    EXPECT_TRUE(*values[2].get<bool>());
    EXPECT_EQ(*values[3].get<std::string>(), gr("Όχι"_gr));
    EXPECT_EQ(*values[4].get<std::int32_t>(), 5);
    EXPECT_EQ(*values[5].get<std::string>(), gr("πέντε"_gr));
    **values[6].get<bool*>() = true;
    EXPECT_EQ(variantJson(values[6]), Json(true));
    EXPECT_EQ(variantJson(values[3]), Json("Όχι"));
    EXPECT_EQ(variantJson(Variant()), Json(nullptr));
}

TEST(Answers, ControlArgumentsThatDoNotFit) {
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
    for (const auto& [types, words] : wrong) EXPECT_FALSE(controlArguments(types, words));
}

}  // namespace
}  // namespace drive
