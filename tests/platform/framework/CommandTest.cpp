#include <QLineEdit>
#include <array>

#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class CommandTest : public ProgramTest {};

TEST_F(CommandTest, GoesToViewDocumentFrameAndApplicationUnlessItsRuleDisablesIt) {
    open();
    log().clear();
    for (const UINT id : {idSwitchable, idByDocument, idByApplication}) EXPECT_TRUE(frame().RunCommand(id));
    EXPECT_FALSE(frame().RunCommand(idUnhandled));
    view().enabled = false;
    EXPECT_FALSE(frame().RunCommand(idSwitchable));
    EXPECT_EQ(log().lines(), (Lines{"view command", "document command", "application command"}));
    frame().SendMessage(WM_COMMAND, idSwitchable);
    EXPECT_EQ(log().count("view command"), 1U);
}

/// A text field inside the view, in which Ctrl+Z undoes typing.
TEST_F(CommandTest, AcceleratorsRunItInsteadOfReachingTheTextField) {
    open();
    QLineEdit edit(&widgetOf(view()));
    edit.show();
    edit.setFocus();
    pressKey(Qt::Key_A);
    log().clear();
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    pressKey(Qt::Key_Backspace, Qt::AltModifier);
    pressKey(Qt::Key(0x0396), Qt::ControlModifier);
    EXPECT_EQ(log().count("view command"), 3U) << "the third is the same key on a Greek keyboard";
    pressKey(Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
    pressKey(Qt::Key_Z);
    EXPECT_EQ(log().count("view command"), 3U) << "with exactly their modifiers";
    EXPECT_EQ(edit.text().toStdString(), "az");
    view().enabled = false;
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(log().count("view command"), 3U);
    EXPECT_EQ(edit.text().toStdString(), "") << "disabled, it goes on to the text field";
}

TEST_F(CommandTest, EventsReachTheSinkOnlyWithTheArgumentsItDeclares) {
    open();
    log().clear();
    std::array fitting{Variant(std::int32_t{3}), Variant(std::string("a"))};
    std::array wrong{Variant(std::string("a")), Variant(std::string("a"))};
    EXPECT_TRUE(view().OnEvent(1035, 1, fitting));
    EXPECT_FALSE(view().OnEvent(1035, 1, wrong));
    EXPECT_FALSE(view().OnEvent(1035, 1, std::span(fitting).first(1)));
    EXPECT_FALSE(view().OnEvent(1035, 2, fitting));
    EXPECT_FALSE(view().OnEvent(1, 1, fitting));
    EXPECT_EQ(log().lines(), Lines{"view event 3 a"});
}

}  // namespace

}  // namespace windows_test
