#include <gtest/gtest.h>

#include "tools/drive/script/KeyName.h"
#include "tools/drive/script/WindowName.h"
#include "tools/drive/script/Words.h"

namespace drive {
namespace {

using Words = std::vector<std::string>;

TEST(ScriptWords, SplitsALine) {
    const std::pair<const char*, std::optional<Words>> lines[] = {
        {"", Words{}},
        {" \t\r", Words{}},
        {"\xEF\xBB\xBFstart", Words{"start"}},
        {"  click 26\t20  frame\r", Words{"click", "26", "20", "frame"}},
        {R"(type "ένα \"δύο\" τρία")", Words{"type", "ένα \"δύο\" τρία"}},
        {R"(type "C:\\a.htm")", Words{"type", "C:\\a.htm"}},
        {R"(control "#1" C:\Temp "D:\mol\x")", Words{"control", "#1", "C:\\Temp", "D:\\mol\\x"}},
        {R"(type "ends with a backslash\\")", Words{"type", "ends with a backslash\\"}},
        {"type \"\"", Words{"type", ""}},
        {"start # a comment", Words{"start"}},
        {"click 1 2 #1035", Words{"click", "1", "2"}},
        {"click 1 2 \"#1035\"", Words{"click", "1", "2", "#1035"}},
        {"type a#b", Words{"type", "a#b"}},
        {"type a\"b", Words{"type", "a\"b"}},
        {"type \"open", std::nullopt},
        {R"(type "open\")", std::nullopt},
        {"type \"a\"b", std::nullopt},
    };
    for (const auto& [line, words] : lines) EXPECT_EQ(splitWords(line), words) << line;
}

TEST(ScriptWords, NoWindowNames) {
    for (const char* wrong : {"", "#", "#x", "1x", "View", "99999999999", "-"}) {
        EXPECT_FALSE(windowNameOf(wrong)) << wrong;
    }
}

TEST(ScriptWords, KeyNames) {
    struct Row {
        const char* name;
        int key;
        Qt::KeyboardModifiers modifiers;
    };
    const Row rows[] = {
        {"PgDn", Qt::Key_PageDown, {}},
        {"f24", Qt::Key_F24, {}},
        {"+", Qt::Key_Plus, {}},
        {"Ctrl++", Qt::Key_Plus, Qt::ControlModifier},
        {"ctrl+SHIFT+ins", Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier},
    };
    for (const Row& row : rows) {
        const std::optional<KeyStroke> stroke = keyStrokeOf(row.name);
        ASSERT_TRUE(stroke) << row.name;
        EXPECT_EQ(stroke->key, row.key) << row.name;
        EXPECT_EQ(stroke->modifiers, row.modifiers) << row.name;
    }
    for (const char* wrong : {"", "F0", "F25", "Fx", "Ctrl+", "Hyper+C", "Enterx", "β", " "}) {
        EXPECT_FALSE(keyStrokeOf(wrong)) << wrong;
    }
}

}  // namespace
}  // namespace drive
