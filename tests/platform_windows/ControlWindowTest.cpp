#include <QLineEdit>

#include "platform/handles/WindowTable.h"
#include "platform/windows/ControlContainer.h"
#include "tests/platform_windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr const char* classId = "11111111-2222-3333-4444-555555555555";

class TestWrapper : public CWnd {
  public:
    const CRuntimeClass& GetRuntimeClass() const override {
        static constexpr CRuntimeClass runtimeClass{"CTest"};
        return runtimeClass;
    }
    template <class R, class... A>
    R call(std::int32_t dispid, InvokeKind kind, A&&... arguments) {
        return Invoke<R>(dispid, kind, std::forward<A>(arguments)...);
    }
};

class ControlWindowTest : public ProgramTest {
  protected:
    void SetUp() override {
        open();
        machine_.registry()
            .createKey(HKEY_CLASSES_ROOT, std::string("CLSID\\{") + classId + "}\\InprocServer32")
            ->setString("", "M:\\test-control.ocx");
        machine_.trace().take();
    }
    bool create(DWORD style = WS_CHILD | WS_VISIBLE) {
        return control_.CreateControl(classId, "Test", style, CRect::at(10, 20, 100, 60), view(), 1035);
    }
    TestWrapper control_;
};

TEST_F(ControlWindowTest, StandsInTheWindowTableAndIsFilledByTheControl) {
    ASSERT_TRUE(create(WS_CHILD));
    const WindowEntry* const entry = WindowTable::instance().find(control_.GetSafeHwnd());
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->className, "CTest");
    EXPECT_EQ(entry->id, 1035);
    EXPECT_EQ(CWnd::FromHandle(control_.GetSafeHwnd()), &control_);
    EXPECT_FALSE(control_.IsWindowVisible());
    control_.MoveWindow(CRect::at(0, 0, 200, 60));
    EXPECT_EQ(control_.call<std::int32_t>(3, InvokeKind::propertyGet), 200) << "sized while it is hidden";
    control_.ShowWindow(SW_SHOW);
    EXPECT_TRUE(control_.IsWindowVisible());
    settle();
    EXPECT_EQ(WindowFromPoint(control_.ClientToScreen({150, 50})), &control_);
}

TEST_F(ControlWindowTest, WindowsInsideOfItHaveHandlesButNoObject) {
    ASSERT_TRUE(create());
    const HWND edit = control_.call<std::int32_t>(2, InvokeKind::propertyGet);
    EXPECT_EQ(SendMessage(edit, WM_COPY), static_cast<LRESULT>(WM_COPY));
    EXPECT_EQ(CWnd::FromHandle(edit), nullptr);
    WindowTable::instance().widget(edit)->setFocus();
    EXPECT_EQ(GetFocus(), edit);
    log().clear();
    // Neither the keys nor the clicks that it has no use for are the view's.
    pressKey(Qt::Key_F9);
    click(control_, 90, 55);
    EXPECT_EQ(log().count("KEY"), 0U);
    EXPECT_EQ(log().count("BUTTON"), 0U);
}

TEST_F(ControlWindowTest, EndsWithTheWindow) {
    ASSERT_TRUE(create());
    const HWND edit = control_.call<std::int32_t>(2, InvokeKind::propertyGet);
    const HWND window = control_.GetSafeHwnd();
    EXPECT_TRUE(control_.DestroyWindow());
    EXPECT_EQ(WindowTable::instance().find(edit), nullptr);
    EXPECT_EQ(controlHostOf(window), nullptr);
    EXPECT_EQ((control_.call<std::int32_t>(3, InvokeKind::propertyGet)), 0);
    EXPECT_TRUE(create()) << "the object can have another window";
    frame().DestroyWindow();
    EXPECT_EQ(control_.GetSafeHwnd(), 0);
}

}  // namespace

}  // namespace windows_test
