#include <gtest/gtest.h>

#include "tools/drive/KeyName.h"
#include "tools/drive/WindowName.h"
#include "tools/drive/Words.h"

namespace drive {
namespace {

using Words = std::vector<std::string>;

struct Line {
    const char* line;
    std::optional<Words> words;
};

TEST(ScriptWords, SplitsALine) {
    const Line lines[] = {
        {"", Words{}},
        {" \t\r", Words{}},
        {"start", Words{"start"}},
        {"\xEF\xBB\xBFstart", Words{"start"}},
        {"  click 26\t20  frame\r", Words{"click", "26", "20", "frame"}},
        {"type \"Άτομα και ιόντα\"", Words{"type", "Άτομα και ιόντα"}},
        {R"(type "ένα \"δύο\" τρία")", Words{"type", "ένα \"δύο\" τρία"}},
        {R"(type "C:\\a.htm")", Words{"type", "C:\\a.htm"}},
        {R"(control "#1" C:\Temp "D:\mol\x")", Words{"control", "#1", "C:\\Temp", "D:\\mol\\x"}},
        {R"(type "ends with a backslash\\")", Words{"type", "ends with a backslash\\"}},
        {"type \"\"", Words{"type", ""}},
        {"# a comment", Words{}},
        {"start # a comment", Words{"start"}},
        {"click 1 2 #1035", Words{"click", "1", "2"}},
        {"click 1 2 \"#1035\"", Words{"click", "1", "2", "#1035"}},
        {"type a#b", Words{"type", "a#b"}},
        {"type a\"b", Words{"type", "a\"b"}},
        {"type \"open", std::nullopt},
        {R"(type "open\")", std::nullopt},
        {"type \"a\"b", std::nullopt},
    };
    for (const Line& row : lines) EXPECT_EQ(splitWords(row.line), row.words) << row.line;
}

TEST(ScriptWords, WindowNames) {
    EXPECT_EQ(windowNameOf("view"), WindowName(NamedWindow::view));
    EXPECT_EQ(windowNameOf("splitter"), WindowName(NamedWindow::splitter));
    EXPECT_EQ(windowNameOf("#1035"), WindowName(ControlName{1035}));
    EXPECT_EQ(windowNameOf("17"), WindowName(HandleName{17}));
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
        {"Enter", Qt::Key_Return, {}},
        {"Delete", Qt::Key_Delete, {}},
        {"PgDn", Qt::Key_PageDown, {}},
        {"F6", Qt::Key_F6, {}},
        {"f24", Qt::Key_F24, {}},
        {"a", Qt::Key_A, {}},
        {"+", Qt::Key_Plus, {}},
        {"Ctrl+C", Qt::Key_C, Qt::ControlModifier},
        {"Ctrl++", Qt::Key_Plus, Qt::ControlModifier},
        {"ctrl+SHIFT+ins", Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier},
        {"Alt+Backspace", Qt::Key_Backspace, Qt::AltModifier},
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
