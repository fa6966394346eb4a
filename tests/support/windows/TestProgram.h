#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <span>
#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/framework/Document.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/View.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "tests/support/windows/TestWindows.h"

/// A whole little program: application, document, frame and view, with a menu and accelerators.
namespace windows_test {

inline constexpr platform::UINT idSwitchable = 1000;  ///< handled by the view; its rule is TestView::enabled
inline constexpr platform::UINT idByDocument = 1001;
inline constexpr platform::UINT idByApplication = 1002;
inline constexpr platform::UINT idUnhandled = 1003;
inline constexpr platform::UINT idExit = 57665;

class TestDocument : public platform::CDocument {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::MessageMap* GetMessageMap() const override;

  private:
    void onCommand();
};

class TestView : public Logged<platform::CView> {
  public:
    TestView() { name = "view"; }
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;
    const platform::EventSinkMap* GetEventSinkMap() const override;
    void OnInitialUpdate() override;
    void OnDraw(platform::CDC& dc) override;

    bool enabled = true;
    platform::CRect firstClient;  ///< client rectangle at the first update
    std::function<void(platform::CDC&)> draw;

  private:
    void onSwitchable();
    void onUpdateSwitchable(platform::CCmdUI& ui);
    bool onEvent(std::int32_t number, const std::string& text);
};

class TestFrame : public Logged<platform::CFrameWnd> {
  public:
    TestFrame() { name = "frame"; }
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    bool PreCreateWindow(platform::CREATESTRUCT& cs) override;

    /// Where the next frame is created; Qt's choice when empty.
    static std::optional<platform::CRect> firstPlace;
};

class TestApplication : public platform::CWinApp {
  public:
    TestApplication();
    const platform::MessageMap* GetMessageMap() const override;
    bool InitInstance() override { return starts && ProcessShellCommand(); }
    int ExitInstance() override { return 7; }
    bool PreTranslateMessage(const platform::MSG& message) override;

    bool starts = true;
    /// Swallows what it returns true for; sees everything.
    std::function<bool(const platform::MSG&)> filter;

  private:
    void onCommand();
};

/// A program on a machine that answers its own message boxes.
class ProgramTest : public ::testing::Test {
  protected:
    /// Drive M: of its machine is the host's folder `modules`, by default that of the components.
    explicit ProgramTest(const std::string& modules = TEST_MODULE_FOLDER);
    ~ProgramTest() override;

    /// Opens the frame on show, normally at (100, 80)-(740, 560), and lets it settle.
    void open(const platform::CRect& place = {100, 80, 740, 560});
    TestFrame& frame() { return *static_cast<TestFrame*>(app_->GetMainWnd()); }
    TestView& view() { return *static_cast<TestView*>(frame().GetActiveView()); }
    TestApplication& app() { return *app_; }
    Log& log() { return Log::instance(); }

    /// A child of the view, on show, named `name` in the log.
    std::unique_ptr<TestWnd> child(const std::string& name, const platform::CRect& rect);

    /// The program has these dialogs.
    void useDialogs(std::span<const platform::DialogTemplate> dialogs);
    /// Shows a dialog before the frame and runs `use` once it is up; its result.
    int show(platform::CDialog& dialog, const std::function<void()>& use);

    // What a person does at the screen; positions are in the window's client area.
    void press(const platform::CWnd& window, int x, int y, Qt::MouseButton button = Qt::LeftButton);
    void release(const platform::CWnd& window, int x, int y, Qt::MouseButton button = Qt::LeftButton);
    void click(const platform::CWnd& window, int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        press(window, x, y, button);
        release(window, x, y, button);
    }
    void doubleClick(const platform::CWnd& window, int x, int y);
    void moveMouse(const platform::CWnd& window, int x, int y);
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    platform::Machine machine_;

  private:
    std::unique_ptr<TestApplication> app_;
};

}  // namespace windows_test
