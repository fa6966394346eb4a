#include <QGuiApplication>
#include <QWindow>
#include <array>

#include "platform/framework/Dialog.h"
#include "platform/windows/Button.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/ScreenRectangle.h"
#include "tests/platform_windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr UINT idTools = 510;
constexpr UINT idPicture = 511;
constexpr UINT idButton = 801;
constexpr std::array dialogs = {
    DialogTemplate{idTools, {}, {60, 20}, {}, DialogFrame::tool},
    DialogTemplate{idPicture, {}, {60, 20}, {}, DialogFrame::plain},
};

/// Red, and blue while it is held down.
class PaintedButton : public Logged<CButton> {
  public:
    void DrawItem(const DRAWITEMSTRUCT& item) override {
        item.dc.FillSolidRect(item.rcItem, item.selected ? RGB(0, 0, 255) : RGB(255, 0, 0));
    }
};

class ToolBox : public Logged<CDialog> {
  public:
    explicit ToolBox(UINT id) : Logged(id) { name = "box"; }
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {
            OnMessage<WM_CREATE, &ToolBox::onCreate>(),
            OnCommandId<&ToolBox::onButton>(idButton),
        };
        static const MessageMap map{CDialog::GetMessageMap(), entries};
        return &map;
    }
    PaintedButton button;
    bool refuses = false;

  private:
    int onCreate(CREATESTRUCT&) {
        button.name = "button";
        button.Create("Όνομα", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect::at(2, 3, 20, 10), *this,
                      idButton);
        return refuses ? -1 : 0;
    }
    void onButton() { Log::instance().add("pushed"); }
};

class ModelessDialogTest : public ProgramTest {
  protected:
    ModelessDialogTest() { useDialogs(dialogs); }
    void SetUp() override { open(); }
    void showBox() {
        ASSERT_TRUE(box_.Create(&view()));
        box_.MoveWindow(CRect::at(300, 200, 144, 44));
        box_.ShowWindow(SW_SHOW);
        settle();
    }
    ToolBox box_{idTools};
};

TEST_F(ModelessDialogTest, IsMadeHiddenAndBelongsToTheFrame) {
    ASSERT_TRUE(box_.Create(&view()));
    EXPECT_FALSE(box_.IsWindowVisible());
    EXPECT_EQ(box_.GetParent(), &frame());
    EXPECT_EQ(box_.button.GetWindowText(), "Όνομα");
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

TEST_F(ModelessDialogTest, ItsOwnFrameLeavesTheRestToTheClientArea) {
    showBox();
    EXPECT_EQ(box_.GetWindowRect(), CRect::at(300, 200, 144, 44));
    EXPECT_EQ(box_.GetClientRect(), CRect::at(0, 0, 138, 22));
    EXPECT_EQ(box_.ClientToScreen({0, 0}), (CPoint{303, 219}));
    EXPECT_EQ(box_.button.GetWindowRect(), CRect::at(305, 222, 20, 10));
    ToolBox picture(idPicture);
    picture.Create();
    picture.MoveWindow(CRect::at(-2, -2, 644, 484));
    EXPECT_EQ(picture.GetClientRect(), CRect::at(0, 0, 640, 480));
}

TEST_F(ModelessDialogTest, ItsCaptionMovesItAndItsBoxClosesIt) {
    showBox();
    press(box_, 30, -8);
    moveMouse(box_, 130, 42);
    release(box_, 30, -8);
    EXPECT_EQ(box_.GetWindowRect(), CRect::at(400, 250, 144, 44));
    log().clear();
    press(box_, 129, -8);
    release(box_, 60, -8);
    EXPECT_EQ(log().count("box 16"), 0U) << "let go beside it";
    click(box_, 129, -8);
    EXPECT_EQ(log().count("box WM_CLOSE") + log().count("box 16"), 1U);
    EXPECT_EQ(log().count("box WM_LBUTTONDOWN"), 0U) << "the frame's clicks are not the dialog's";
    EXPECT_FALSE(box_.IsWindowVisible()) << "closing is the command IDCANCEL, and that hides it";
    EXPECT_NE(box_.GetSafeHwnd(), 0);
    settle();
    EXPECT_EQ(GetFocus(), view().GetSafeHwnd());
}

TEST_F(ModelessDialogTest, ItsButtonIsDrawnByItsObject) {
    showBox();
    EXPECT_EQ(shownColour(box_, 2, 3), "ff0000");
    press(box_, 4, 5);
    EXPECT_EQ(shownColour(box_, 2, 3), "0000ff");
    release(box_, 100, 5);
    EXPECT_EQ(shownColour(box_, 2, 3), "ff0000");
    EXPECT_EQ(log().count("pushed"), 0U);
    click(box_, 4, 5);
    EXPECT_EQ(log().count("pushed"), 1U);
    CButton other;
    EXPECT_FALSE(other.Create("", WS_CHILD | WS_VISIBLE, {}, box_, 5)) << "only those that are drawn";
}

TEST_F(ModelessDialogTest, TheFocusIsWhereItWasPutBeforeItsWindowIsActive) {
    showBox();
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
