#include "platform/windows/MessageMap.h"
#include "tests/platform_windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class Base : public CCmdTarget {
  public:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {OnCommandId<&Base::onOne>(1),
                                                      OnCommandId<&Base::onTwo>(2)};
        static const MessageMap map{nullptr, entries};
        return &map;
    }
    std::string done;

  protected:
    void onOne() { done += "base1 "; }
    void onTwo() { done += "base2 "; }
};

class Derived : public Base {
  public:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {OnCommandId<&Derived::onOne>(1)};
        static const MessageMap map{Base::GetMessageMap(), entries};
        return &map;
    }

  private:
    void onOne() { done += "derived1 "; }
};

TEST(MessageMapTest, LooksFromTheClassDownToItsBases) {
    Derived target;
    EXPECT_TRUE(target.OnCmdMsg(1, CommandMessage::execute, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(2, CommandMessage::execute, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(3, CommandMessage::execute, nullptr));
    EXPECT_EQ(target.done, "derived1 base2 ");
}

class CommandTest : public ProgramTest {};

TEST_F(CommandTest, GoesToViewDocumentFrameAndApplication) {
    open();
    log().clear();
    for (const UINT id : {idSwitchable, idByDocument, idByApplication}) EXPECT_TRUE(frame().RunCommand(id));
    EXPECT_FALSE(frame().RunCommand(idUnhandled));
    EXPECT_EQ(log().lines(), (Lines{"view command", "document command", "application command"}));
}

TEST_F(CommandTest, IsNotCarriedOutWhenItsRuleDisablesIt) {
    open();
    view().enabled = false;
    log().clear();
    EXPECT_FALSE(frame().RunCommand(idSwitchable));
    frame().SendMessage(WM_COMMAND, idSwitchable);
    view().SendMessage(WM_COMMAND, idSwitchable);
    EXPECT_EQ(log().count("view command"), 0U);
    view().enabled = true;
    frame().SendMessage(WM_COMMAND, idSwitchable);
    view().SendMessage(WM_COMMAND, idSwitchable);
    EXPECT_EQ(log().count("view command"), 2U);
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
