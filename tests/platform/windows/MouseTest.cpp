#include <QApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QWidget>
#include <QWindow>

#include "platform/windows/Cursor.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class MouseTest : public ProgramTest {
  protected:
    void SetUp() override {
        open();
        left_ = child("left", CRect::at(10, 10, 50, 50));
        right_ = child("right", CRect::at(100, 10, 50, 50));
        log().clear();
    }
    Lines mouse() { return log().lines({"MOUSE", "BUTTON", "WM_SETCURSOR"}); }
    Lines buttons() { return log().lines({"BUTTON"}); }

    std::unique_ptr<TestWnd> left_;
    std::unique_ptr<TestWnd> right_;
};

TEST_F(MouseTest, ADoubleClickReplacesTheSecondPress) {
    doubleClick(*left_, 5, 6);
    EXPECT_EQ(buttons(), (Lines{"left WM_LBUTTONDOWN 5,6", "left WM_LBUTTONUP 5,6",
                                "left WM_LBUTTONDBLCLK 5,6", "left WM_LBUTTONUP 5,6"}));
}

TEST_F(MouseTest, TheCursorIsAskedForBeforeEachMove) {
    left_->on(WM_SETCURSOR, [](WPARAM) { CCursor::FromResource(1).Set(); }, 1);
    moveMouse(*left_, 15, 6);
    moveMouse(*left_, 7, 8);
    moveMouse(*right_, 7, 8);
    EXPECT_EQ(mouse(), (Lines{"left WM_SETCURSOR", "left WM_MOUSEMOVE 15,6", "left WM_SETCURSOR",
                              "left WM_MOUSEMOVE 7,8", "right WM_SETCURSOR", "right WM_MOUSEMOVE 7,8"}));
    EXPECT_EQ(widgetOf(*left_).cursor().hotSpot(), QPoint(3, 5));
    EXPECT_EQ(widgetOf(*right_).cursor().shape(), Qt::ArrowCursor);
    left_->on(WM_SETCURSOR, {});
    moveMouse(*left_, 1, 1);
    EXPECT_EQ(widgetOf(*left_).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(MouseTest, ThePointerComesInByAMove) {
    QWidget& top = *widgetOf(*left_).window();
    const QPointF global = widgetOf(*left_).mapToGlobal(QPointF(3, 4));
    const QPointF inside = top.mapFromGlobal(global);
    QEnterEvent entering(inside, inside, global);
    QApplication::sendEvent(top.windowHandle(), &entering);
    EXPECT_EQ(log().lines({"MOUSE"}), (Lines{"left WM_MOUSEMOVE 3,4"}));
}

TEST_F(MouseTest, TheCapturingWindowGetsEverythingInItsOwnCoordinates) {
    press(*left_, 4, 5);
    left_->SetCapture();
    log().clear();
    moveMouse(*right_, 0, 0);
    moveMouse(view(), 0, 0);
    release(view(), 0, 0);
    click(view(), 0, 0, Qt::RightButton);
    EXPECT_EQ(mouse(),
              (Lines{"left WM_MOUSEMOVE 90,0", "left WM_MOUSEMOVE -10,-10", "left WM_LBUTTONUP -10,-10",
                     "left WM_RBUTTONDOWN -10,-10", "left WM_RBUTTONUP -10,-10"}));
    CWnd::ReleaseCapture();
    log().clear();
    moveMouse(*right_, 0, 0);
    EXPECT_EQ(log().count("right WM_MOUSEMOVE 0,0"), 1U);
}

TEST_F(MouseTest, ACapturedClickDoesNotMoveTheFocus) {
    left_->SetFocus();
    left_->SetCapture();
    widgetOf(*right_).setFocusPolicy(Qt::ClickFocus);
    log().clear();
    click(*right_, 2, 2);
    EXPECT_EQ(log().count("FOCUS"), 0U);
    CWnd::ReleaseCapture();
    click(*right_, 2, 2);
    EXPECT_EQ(log().lines({"FOCUS"}), (Lines{"left WM_KILLFOCUS", "right WM_SETFOCUS"}));
}

TEST_F(MouseTest, TheCaptureEndsWithItsWindow) {
    left_->SetCapture();
    left_.reset();
    click(*right_, 30, 30);
    EXPECT_EQ(buttons(), (Lines{"right WM_LBUTTONDOWN 30,30", "right WM_LBUTTONUP 30,30"}));
}

TEST_F(MouseTest, TheWindowUnderAPointIsOneOfTheProgramsOwn) {
    EXPECT_EQ(WindowFromPoint(left_->ClientToScreen({1, 1})), left_.get());
    EXPECT_EQ(WindowFromPoint(view().ClientToScreen({70, 70})), &view());
    EXPECT_EQ(WindowFromPoint({1, 1}), nullptr) << "beside the frame";
    const CPoint screen = left_->ClientToScreen({7, 8});
    QCursor::setPos(screen.x, screen.y);
    settle();
    EXPECT_EQ(left_->ScreenToClient(GetCursorPos()), (CPoint{7, 8}));
    CCursor::FromResource(1).Set();
    EXPECT_EQ(widgetOf(*left_).cursor().hotSpot(), QPoint(3, 5)) << "set without a question";
}

}  // namespace

}  // namespace windows_test
