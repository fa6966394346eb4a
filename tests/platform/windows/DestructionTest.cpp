#include <QWidget>

#include "platform/qt/WindowTable.h"
#include "platform/windows/WindowDC.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class DestructionTest : public ProgramTest {
  protected:
    void SetUp() override { open(); }
    Lines destroyed() { return log().lines({"WM_DESTROY"}); }
};

TEST_F(DestructionTest, TellsTheWindowBeforeItsChildren) {
    const auto first = child("first", CRect::at(0, 0, 50, 50));
    const auto second = child("second", CRect::at(60, 0, 50, 50));
    TestWnd inner;
    inner.name = "inner";
    ASSERT_TRUE(inner.CreateWnd("", WS_CHILD, {0, 0, 5, 5}, *first, 1));
    TestFrame& top = frame();
    bool stillThere = false;
    top.on(WM_DESTROY,
           [&](WPARAM) { stillThere = top.IsWindowVisible() && top.GetWindowRect().left == 100; });
    EXPECT_TRUE(top.DestroyWindow());
    EXPECT_EQ(destroyed(), (Lines{"frame WM_DESTROY", "view WM_DESTROY", "first WM_DESTROY",
                                  "inner WM_DESTROY", "second WM_DESTROY"}));
    EXPECT_TRUE(stillThere);
    EXPECT_EQ(app().GetMainWnd(), nullptr);
    for (const CWnd* window : std::initializer_list<const CWnd*>{&top, first.get(), &inner, second.get()}) {
        EXPECT_EQ(window->GetSafeHwnd(), 0);
    }
    EXPECT_FALSE(top.DestroyWindow());
}

TEST_F(DestructionTest, AHandlerMayDestroyChildrenAndTheWindowAgain) {
    const auto first = child("first", CRect::at(0, 0, 50, 50));
    const auto second = child("second", CRect::at(60, 0, 50, 50));
    first->on(WM_DESTROY, [&](WPARAM) {
        second->DestroyWindow();
        first->DestroyWindow();
    });
    frame().DestroyWindow();
    EXPECT_EQ(destroyed(),
              (Lines{"frame WM_DESTROY", "view WM_DESTROY", "first WM_DESTROY", "second WM_DESTROY"}));
}

TEST_F(DestructionTest, EntriesVanishWithTheirWidget) {
    WindowTable& table = WindowTable::instance();
    auto widget = std::make_unique<QWidget>(&widgetOf(view()));
    int received = 0;
    const HWND window =
        table.add({widget.get(), "Edit", 3, [&](UINT, WPARAM, LPARAM) -> LRESULT { return ++received; }});
    EXPECT_EQ(table.handleOf(widget.get()), window);
    EXPECT_EQ(SendMessage(window, WM_COPY), 1);
    EXPECT_EQ(CWnd::FromHandle(window), nullptr);
    table.post(window, WM_COPY);
    EXPECT_EQ(received, 1);
    settle();
    EXPECT_EQ(received, 2);
    table.post(window, WM_COPY);
    widget.reset();
    EXPECT_EQ(table.find(window), nullptr);
    EXPECT_EQ(SendMessage(window, WM_COPY), 0);
    settle();
    EXPECT_EQ(received, 2);
    for (const HWND none : {0, -1, 1'000'000}) EXPECT_EQ(table.find(none), nullptr);
    QWidget other;
    EXPECT_GT(table.add({&other, "Edit", 3, {}}), window) << "no handle is given out twice";
}

TEST_F(DestructionTest, AWindowEndsAtTheLatestWithItsObject) {
    auto window = child("child", CRect::at(0, 0, 50, 50));
    const HWND handle = window->GetSafeHwnd();
    window->Invalidate();
    window.reset();
    EXPECT_EQ(WindowTable::instance().find(handle), nullptr);
    settle();
    EXPECT_EQ(shownColour(view(), 10, 10), "ffffff");
}

TEST_F(DestructionTest, AHandlerThatRefusesCreationLeavesNoWindow) {
    TestWnd window;
    window.on(WM_CREATE, {}, -1);
    const std::size_t before = WindowTable::instance().all().size();
    EXPECT_FALSE(window.CreateWnd("", WS_CHILD, {0, 0, 5, 5}, view(), 1));
    EXPECT_EQ(window.GetSafeHwnd(), 0);
    EXPECT_EQ(WindowTable::instance().all().size(), before);
    TestWnd homeless;
    EXPECT_FALSE(homeless.CreateWnd("", WS_CHILD, {0, 0, 5, 5}, window, 1)) << "the parent has no window";
}

TEST_F(DestructionTest, AnObjectWithoutAWindowDoesNothing) {
    TestWnd window;
    window.ShowWindow(SW_SHOW);
    window.MoveWindow({0, 0, 5, 5});
    window.Invalidate();
    window.SetFocus();
    window.SetTimer(1, 1);
    window.PostMessage(WM_CLOSE);
    EXPECT_EQ(window.SendMessage(WM_PAINT), 0);
    EXPECT_EQ(window.GetClientRect(), CRect());
    EXPECT_EQ(window.GetWindowText(), "");
    EXPECT_EQ(window.GetParent(), nullptr);
    CClientDC(window).FillSolidRect({0, 0, 5, 5}, 0);
    EXPECT_TRUE(log().lines({"window"}).empty());
}

}  // namespace

}  // namespace windows_test
