#include <QGuiApplication>
#include <QWindow>
#include <array>

#include "platform/dialogs/Dialog.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/qt/ScreenRectangle.h"
#include "platform/widgets/Button.h"
#include "platform/windows/MessageMap.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr UINT idTools = 510;
constexpr std::array modelessDialogs = {DialogTemplate{idTools, {}, {60, 20}, {}, DialogFrame::tool}};

class ToolBox : public CDialog {
  public:
    using CDialog::CDialog;
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {OnMessage<WM_CREATE, &ToolBox::onCreate>()};
        static const MessageMap map{CDialog::GetMessageMap(), entries};
        return &map;
    }
    CButton button;
    bool refuses = false;

  private:
    int onCreate(CREATESTRUCT&) {
        button.Create("", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect::at(2, 3, 20, 10), *this, 801);
        return refuses ? -1 : 0;
    }
};

class ModelessDialogTest : public ProgramTest {
  protected:
    ModelessDialogTest() { useDialogs(modelessDialogs); }
    void SetUp() override { open(); }
    ToolBox box_{idTools};
};

TEST_F(ModelessDialogTest, IsMadeHiddenAndBelongsToTheFrame) {
    ASSERT_TRUE(box_.Create(&view()));
    EXPECT_FALSE(box_.IsWindowVisible());
    EXPECT_EQ(box_.GetParent(), &frame());
    EXPECT_FALSE(CButton().Create("", WS_CHILD | WS_VISIBLE, {}, box_, 5)) << "only those that are drawn";
    EXPECT_FALSE(box_.Create(&view())) << "it is there already";
    frame().DestroyWindow();
    settle();
    EXPECT_EQ(box_.GetSafeHwnd() | box_.button.GetSafeHwnd(), 0);
}

TEST_F(ModelessDialogTest, IsNotMadeWhenItRefusesOrHasNoTemplate) {
    box_.refuses = true;
    EXPECT_FALSE(box_.Create(&view()));
    EXPECT_EQ(box_.GetSafeHwnd(), 0);
    EXPECT_FALSE(ToolBox(99).Create());
}

TEST_F(ModelessDialogTest, TheFocusIsWhereItWasPutBeforeItsWindowIsActive) {
    ASSERT_TRUE(box_.Create(&view()));
    box_.ShowWindow(SW_SHOW);
    settle();
    widgetOf(box_).activateWindow();
    settle();
    EXPECT_EQ(GetFocus(), box_.button.GetSafeHwnd());
    platform::SetFocus(view().GetSafeHwnd());
    EXPECT_EQ(GetFocus(), view().GetSafeHwnd()) << "at once";
    settle();
    EXPECT_EQ(GetFocus(), view().GetSafeHwnd());
    platform::SetFocus(9999);
    EXPECT_EQ(GetFocus(), view().GetSafeHwnd());
}

TEST_F(ModelessDialogTest, AScreenRectangleLeavesNothingBehind) {
    const auto windows = [] {
        return std::ranges::count_if(QGuiApplication::allWindows(), &QWindow::isVisible);
    };
    const auto before = windows();
    {
        ScreenRectangle rectangle(RGB(0, 0, 128));
        rectangle.Show(CRect::at(10, 20, 30, 40));
        rectangle.Show(CRect::at(110, 20, 50, 40));
        settle();
        EXPECT_EQ(windows(), before + 1) << "it is in one place";
        EXPECT_EQ(GetFocus(), view().GetSafeHwnd()) << "and takes no focus";
    }
    EXPECT_EQ(windows(), before);
}

}  // namespace

}  // namespace windows_test
