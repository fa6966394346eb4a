#include <QWidget>

#include "platform/input/KeyboardFocus.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class FocusTest : public ProgramTest {
  protected:
    void SetUp() override { open(); }
    Lines focus() { return log().lines({"FOCUS"}); }
};

TEST_F(FocusTest, BothWindowsAreToldOfEachOther) {
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    HWND left = 0, entered = 0;
    window->on(WM_SETFOCUS, [&](WPARAM wParam) { left = static_cast<HWND>(wParam); });
    view().on(WM_KILLFOCUS, [&](WPARAM wParam) { entered = static_cast<HWND>(wParam); });
    log().clear();
    window->SetFocus();
    EXPECT_EQ(focus(), (Lines{"view WM_KILLFOCUS", "child WM_SETFOCUS"}));
    EXPECT_EQ(left, view().GetSafeHwnd());
    EXPECT_EQ(entered, window->GetSafeHwnd());
    EXPECT_EQ(GetFocus(), window->GetSafeHwnd());
}

TEST_F(FocusTest, AWindowThatIsHiddenOrGoesLeavesItToItsParent) {
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    QWidget other(&widgetOf(view()));
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    window->SetFocus();
    log().clear();
    window->ShowWindow(SW_HIDE);
    EXPECT_EQ(focus(), (Lines{"child WM_KILLFOCUS", "view WM_SETFOCUS"}));
    window->ShowWindow(SW_SHOW);
    window->SetFocus();
    log().clear();
    window->DestroyWindow();
    EXPECT_EQ(focus(), (Lines{"child WM_KILLFOCUS", "view WM_SETFOCUS"}));
    settle();
    EXPECT_EQ(GetFocus(), view().GetSafeHwnd());
}

TEST_F(FocusTest, AClickOnTheViewTakesItOnlyFromOutside) {
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    window->SetFocus();
    press(view(), 100, 100);
    EXPECT_EQ(GetFocus(), window->GetSafeHwnd()) << "the view's own child keeps it";
    release(view(), 100, 100);
    widgetOf(frame()).setFocus();
    click(view(), 50, 100);
    EXPECT_EQ(GetFocus(), view().GetSafeHwnd());
}

TEST_F(FocusTest, KeysGoToTheFocusWindowAlone) {
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    window->SetFocus();
    log().clear();
    const std::vector<std::pair<Qt::Key, int>> keys = {
        {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},  {Qt::Key_Escape, 27}, {Qt::Key_Left, 37},
        {Qt::Key_Down, 40},   {Qt::Key_Delete, 46}, {Qt::Key_C, 'C'},     {Qt::Key_7, '7'},
        {Qt::Key_F5, 116},    {Qt::Key(0x3A8), 'C'}};
    Lines expected;
    for (const auto& [key, number] : keys) {
        pressKey(key);
        expected.push_back("child WM_KEYDOWN " + std::to_string(number));
    }
    EXPECT_EQ(log().lines({"WM_KEYDOWN"}), expected);
    EXPECT_EQ(GetFocus(), window->GetSafeHwnd());
}

TEST_F(FocusTest, ATimerHandlerMayEndItsWindow) {
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    window->SetTimer(2, 1);
    window->KillTimer(2);
    window->SetTimer(1, 20);
    window->on(WM_TIMER, [&](WPARAM) { window->DestroyWindow(); });
    settleFor(60);
    EXPECT_EQ(log().lines({"WM_TIMER"}), Lines{"child WM_TIMER 1"});
    EXPECT_EQ(window->GetSafeHwnd(), 0);
}

}  // namespace

}  // namespace windows_test
