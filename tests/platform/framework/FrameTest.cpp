#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr CRect place = {100, 80, 740, 560};

class FrameTest : public ProgramTest {
  protected:
    std::string clientSize(const CWnd& window) {
        const CRect client = window.GetClientRect();
        return std::to_string(client.Width()) + "x" + std::to_string(client.Height());
    }
};

TEST_F(FrameTest, TheViewFillsTheClientAreaBeforeItsFirstUpdate) {
    open();
    const CRect client = view().GetClientRect();
    EXPECT_EQ(view().firstClient, client);
    EXPECT_EQ(frame().GetClientRect(), client);
    EXPECT_EQ(view().ClientToScreen({0, 0}), frame().ClientToScreen({0, 0}));
    EXPECT_LT(client.Height(), 480 - 10) << "the menu bar lies above";
    EXPECT_EQ(log().lines({"WM_CREATE", "WM_SIZE"}),
              (Lines{"frame WM_CREATE", "view WM_CREATE", "view WM_SIZE 0 " + clientSize(view()),
                     "frame WM_SIZE 0 " + clientSize(frame())}));
}

TEST_F(FrameTest, ResizesTellFrameAndView) {
    open();
    const auto sizesAfter = [&](int show) {
        log().clear();
        frame().ShowWindow(show);
        settle();
        return log().lines({"WM_SIZE"});
    };
    const auto both = [&](const char* how) {
        const std::string size = clientSize(frame());
        return Lines{"frame WM_SIZE " + std::string(how) + size, "view WM_SIZE 0 " + size};
    };
    EXPECT_EQ(sizesAfter(SW_SHOWMINIMIZED), Lines{"frame WM_SIZE 1 0x0"});
    EXPECT_TRUE(frame().IsIconic() && !frame().IsZoomed());
    Lines sizes = sizesAfter(SW_SHOWNORMAL);
    EXPECT_EQ(sizes, Lines{"frame WM_SIZE 0 " + clientSize(frame())});
    EXPECT_FALSE(frame().IsIconic());
    sizes = sizesAfter(SW_SHOWMAXIMIZED);
    EXPECT_EQ(sizes, both("2 "));
    EXPECT_TRUE(frame().IsZoomed());
    EXPECT_EQ(widgetOf(frame()).frameGeometry(), widgetOf(frame()).screen()->availableGeometry());
    sizesAfter(SW_SHOWMINIMIZED);
    EXPECT_FALSE(frame().IsZoomed());
    sizes = sizesAfter(SW_SHOWNORMAL);
    EXPECT_EQ(sizes, both("0 "));
    EXPECT_EQ(frame().GetWindowRect(), place);
}

/// What Qt does when the first browser is added to a window.
struct MadeAnew : QWidget {
    static void make(QWidget& widget) {
        (widget.*&MadeAnew::destroy)(true, true);
        (widget.*&MadeAnew::create)(0, true, true);
        widget.windowHandle()->setVisible(true);
    }
};

TEST_F(FrameTest, StaysMaximisedWhenItsNativeWindowIsMadeAnew) {
    open();
    frame().ShowWindow(SW_SHOWMAXIMIZED);
    MadeAnew::make(widgetOf(frame()));
    EXPECT_EQ(widgetOf(frame()).windowHandle()->windowStates(), Qt::WindowMaximized);
    settle();
    frame().ShowWindow(SW_SHOWNORMAL);
    settle();
    EXPECT_EQ(frame().GetWindowRect(), place);
}

TEST_F(FrameTest, MenusRunTheirRulesWhenTheyAreOpened) {
    open();
    QMenu& menu = *widgetOf(frame()).findChild<QMenuBar*>()->actions()[0]->menu();
    const QList<QAction*> items = menu.actions();
    const auto states = [&] {
        emit menu.aboutToShow();
        std::string text;
        for (const QAction* action : items) {
            text += action->isSeparator() ? "-" : action->isEnabled() ? action->isChecked() ? "C" : "e" : "d";
        }
        return text;
    };
    EXPECT_EQ(states(), "C-ede");
    EXPECT_EQ(items[0]->text(), QStringLiteral("Εντολή\tCtrl+Z"));
    items[0]->trigger();
    EXPECT_EQ(log().count("view command"), 1U);
    view().enabled = false;
    EXPECT_EQ(states(), "d-ede");
    EXPECT_TRUE(frame().MenuState(9).empty());
}

TEST_F(FrameTest, ClosesOnceTheProgramWantsTo) {
    open();
    frame().on(WM_CLOSE, {}, 0);
    widgetOf(frame()).close();
    settle();
    EXPECT_TRUE(frame().IsWindowVisible());
    frame().on(0, {});
    log().clear();
    frame().SendMessage(WM_COMMAND, idExit);
    EXPECT_EQ(log().lines({"WM_CLOSE", "WM_DESTROY"}),
              (Lines{"frame WM_CLOSE", "frame WM_DESTROY", "view WM_DESTROY"}));
    EXPECT_EQ(app().GetMainWnd(), nullptr);
}

}  // namespace

}  // namespace windows_test
