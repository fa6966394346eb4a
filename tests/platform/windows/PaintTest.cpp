#include "platform/windows/WindowDC.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr COLORREF red = RGB(255, 0, 0);

class PaintTest : public ProgramTest {
  protected:
    Lines paints() { return log().lines({"WM_PAINT", "WM_ERASEBKGND"}); }
};

TEST_F(PaintTest, WhatIsDrawnOutsideOfPaintingIsShownAndStays) {
    open();
    log().clear();
    CClientDC(view()).FillSolidRect({10, 10, 20, 20}, red);
    settle();
    EXPECT_EQ(shownColour(view(), 15, 15), "ff0000");
    EXPECT_EQ(shownColour(view(), 25, 15), "ffffff");
    widgetOf(view()).update();
    settle();
    EXPECT_EQ(shownColour(view(), 15, 15), "ff0000");
    EXPECT_TRUE(paints().empty());
}

TEST_F(PaintTest, AResizeKeepsThePictureUntilTheWholeIsPaintedAnew) {
    open();
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    window->on(WM_ERASEBKGND, {}, 1);
    CClientDC(*window).FillSolidRect({0, 0, 50, 50}, red);
    log().clear();
    window->MoveWindow(CRect::at(0, 0, 80, 30));
    settle();
    EXPECT_EQ(log().lines(), (Lines{"child WM_SIZE 0 80x30", "child WM_ERASEBKGND", "child WM_PAINT"}));
    EXPECT_EQ(shownColour(*window, 49, 29), "ff0000");
    EXPECT_EQ(shownColour(*window, 60, 10), "ffffff");
    log().clear();
    window->MoveWindow(CRect::at(5, 5, 80, 30));
    settle();
    EXPECT_TRUE(log().lines().empty()) << "a move alone changes nothing inside";
}

TEST_F(PaintTest, InvalidationEndsWithOnePaint) {
    open();
    view().draw = [](CDC& dc) { dc.FillSolidRect({0, 0, 1000, 1000}, red); };
    log().clear();
    view().Invalidate(false);
    view().Invalidate(false);
    EXPECT_TRUE(paints().empty()) << "painting waits for the program to be idle";
    settle();
    EXPECT_EQ(paints(), Lines{"view WM_PAINT"});
    log().clear();
    view().Invalidate(false);
    view().Invalidate();
    settle();
    EXPECT_EQ(paints(), (Lines{"view WM_ERASEBKGND", "view WM_PAINT"}));
    view().Invalidate();
    {
        CPaintDC marksItAsPainted(view());
    }
    settleFor(100);
    EXPECT_EQ(paints().size(), 2U);
    EXPECT_EQ(shownColour(view(), 3, 3), "ff0000");
}

TEST_F(PaintTest, APaintHandlerMayMoveAndRepaintOtherWindows) {
    open();
    const auto window = child("child", CRect::at(0, 0, 50, 50));
    view().draw = [&](CDC&) {
        window->MoveWindow(CRect::at(0, 0, 60, 60));
        window->Invalidate();
    };
    log().clear();
    view().Invalidate();
    settle();
    EXPECT_EQ(log().count("child WM_SIZE 0 60x60"), 1U);
    EXPECT_EQ(log().count("child WM_PAINT"), 1U);
    EXPECT_EQ(log().count("view WM_PAINT"), 1U);
}

}  // namespace

}  // namespace windows_test
