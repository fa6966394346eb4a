#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QWidget>

#include "tests/platform_windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr CRect place = {100, 80, 740, 560};

class FrameTest : public ProgramTest {
  protected:
    Lines sizes() { return log().lines({"WM_SIZE"}); }
    std::string clientSize(const CWnd& window) {
        const CRect client = window.GetClientRect();
        return std::to_string(client.Width()) + "x" + std::to_string(client.Height());
    }
    QMenu& menu(int index) { return *widgetOf(frame()).findChild<QMenuBar*>()->actions()[index]->menu(); }
    QAction& item(int index) { return *menu(0).actions()[index]; }
};

TEST_F(FrameTest, TheViewFillsTheClientAreaBeforeItsFirstUpdate) {
    open();
    const CRect client = view().GetClientRect();
    EXPECT_EQ(view().firstClient, client);
    EXPECT_EQ(frame().GetClientRect(), client);
    EXPECT_EQ(view().ClientToScreen({0, 0}), frame().ClientToScreen({0, 0}));
    EXPECT_LT(client.Height(), 480 - 10) << "the menu bar lies above";
    EXPECT_EQ(view().GetDlgCtrlID(), static_cast<int>(AFX_IDW_PANE_FIRST));
    EXPECT_EQ(view().GetParentFrame(), &frame());
    EXPECT_EQ(log().lines({"WM_CREATE", "WM_SIZE"}),
              (Lines{"frame WM_CREATE", "view WM_CREATE", "view WM_SIZE 0 " + clientSize(view()),
                     "frame WM_SIZE 0 " + clientSize(frame())}));
}

TEST_F(FrameTest, ResizesTellFrameAndView) {
    open();
    log().clear();
    frame().MoveWindow({100, 80, 700, 500});
    EXPECT_EQ(sizes(),
              (Lines{"frame WM_SIZE 0 " + clientSize(frame()), "view WM_SIZE 0 " + clientSize(frame())}));
    settle();
    EXPECT_EQ(sizes().size(), 2U);
}

TEST_F(FrameTest, MinimisesAndRestores) {
    open();
    log().clear();
    frame().ShowWindow(SW_SHOWMINIMIZED);
    settle();
    EXPECT_TRUE(frame().IsIconic());
    EXPECT_FALSE(frame().IsZoomed());
    EXPECT_EQ(sizes(), Lines{"frame WM_SIZE 1 0x0"});
    log().clear();
    frame().ShowWindow(SW_SHOWNORMAL);
    settle();
    EXPECT_FALSE(frame().IsIconic());
    EXPECT_EQ(sizes(), Lines{"frame WM_SIZE 0 " + clientSize(frame())});
    EXPECT_EQ(frame().GetWindowRect(), place);
}

TEST_F(FrameTest, MaximisesAndRestores) {
    open();
    log().clear();
    frame().ShowWindow(SW_SHOWMAXIMIZED);
    settle();
    EXPECT_TRUE(frame().IsZoomed());
    const QRect available = widgetOf(frame()).screen()->availableGeometry();
    EXPECT_EQ(widgetOf(frame()).frameGeometry(), available);
    EXPECT_EQ(sizes(),
              (Lines{"frame WM_SIZE 2 " + clientSize(frame()), "view WM_SIZE 0 " + clientSize(frame())}));
    frame().ShowWindow(SW_SHOWMINIMIZED);
    settle();
    EXPECT_FALSE(frame().IsZoomed());
    log().clear();
    frame().ShowWindow(SW_SHOWNORMAL);
    settle();
    EXPECT_FALSE(frame().IsZoomed());
    EXPECT_EQ(frame().GetWindowRect(), place);
    EXPECT_EQ(sizes(),
              (Lines{"frame WM_SIZE 0 " + clientSize(frame()), "view WM_SIZE 0 " + clientSize(frame())}));
}

TEST_F(FrameTest, MenusRunTheirRulesWhenTheyAreOpened) {
    open();
    const auto states = [&] {
        std::string text;
        for (const QAction* action : menu(0).actions()) {
            text += action->isSeparator() ? "-" : action->isEnabled() ? action->isChecked() ? "C" : "e" : "d";
        }
        return text;
    };
    emit menu(0).aboutToShow();
    EXPECT_EQ(states(), "C-ede");
    EXPECT_EQ(item(0).text(), QStringLiteral("Εντολή"));
    view().enabled = false;
    emit menu(0).aboutToShow();
    EXPECT_EQ(states(), "d-ede");
    EXPECT_TRUE(frame().MenuState(9).empty());
}

TEST_F(FrameTest, AChosenMenuItemIsCarriedOut) {
    open();
    log().clear();
    item(0).trigger();
    EXPECT_EQ(log().lines({"command", "WM_COMMAND"}), (Lines{"frame WM_COMMAND 1000", "view command"}));
}

TEST_F(FrameTest, ClosesByItsButton) {
    open();
    log().clear();
    widgetOf(frame()).close();
    EXPECT_EQ(log().lines({"WM_CLOSE", "WM_DESTROY"}),
              (Lines{"frame WM_CLOSE", "frame WM_DESTROY", "view WM_DESTROY"}));
    EXPECT_EQ(app().GetMainWnd(), nullptr);
}

TEST_F(FrameTest, ClosesByTheExitCommand) {
    open();
    log().clear();
    item(4).trigger();
    EXPECT_EQ(log().lines({"WM_CLOSE", "WM_DESTROY"}),
              (Lines{"frame WM_CLOSE", "frame WM_DESTROY", "view WM_DESTROY"}));
}

TEST_F(FrameTest, StaysWhenTheProgramDoesNotCloseIt) {
    open();
    frame().on(WM_CLOSE, {}, 0);
    widgetOf(frame()).close();
    settle();
    EXPECT_TRUE(frame().IsWindowVisible());
}

}  // namespace

}  // namespace windows_test
