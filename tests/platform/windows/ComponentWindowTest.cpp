#include <QWidget>

#include "platform/input/KeyboardFocus.h"
#include "platform/qt/WindowTable.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

/// The browse selection, a component with a text field.
constexpr const char* classId = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E102";

class TestWrapper : public CWnd {
  public:
    const CRuntimeClass& GetRuntimeClass() const override {
        static constexpr CRuntimeClass runtimeClass{"CTest"};
        return runtimeClass;
    }
    HWND editWindow() { return Invoke<std::int32_t>(8, InvokeKind::method); }
};

using ComponentWindowTest = ProgramTest;

TEST_F(ComponentWindowTest, WindowsInsideOfItHaveHandlesButNoObjectAndEndWithIt) {
    open();
    machine_.registry()
        .createKey(HKEY_CLASSES_ROOT, std::string("CLSID\\{") + classId + "}\\InprocServer32")
        ->setString("", "M:\\kzselectgk.ocx");
    TestWrapper component;
    ASSERT_TRUE(component.CreateControl(classId, "Test", WS_CHILD | WS_VISIBLE, CRect::at(10, 20, 100, 60),
                                        view(), 1035));
    const HWND edit = component.editWindow();
    EXPECT_EQ(CWnd::FromHandle(edit), nullptr);
    WindowTable::instance().widget(edit)->setFocus();
    EXPECT_EQ(GetFocus(), edit);
    log().clear();
    // Keys and clicks that the component does not use do not go to the view.
    pressKey(Qt::Key_F9);
    click(component, 90, 55);
    EXPECT_EQ(log().count("KEY") + log().count("BUTTON"), 0U);
    EXPECT_TRUE(component.DestroyWindow());
    EXPECT_EQ(WindowTable::instance().find(edit), nullptr);
    EXPECT_EQ(component.editWindow(), 0);
}

}  // namespace

}  // namespace windows_test
