#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <span>
#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/View.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "tests/support/windows/TestWindows.h"

/// A complete small program: application, document, frame and view, with a menu and accelerators.
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

    /// The place of the next frame; chosen by Qt if empty.
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
    /// Called for all input; the input for which it returns true is swallowed.
    std::function<bool(const platform::MSG&)> filter;

  private:
    void onCommand();
};

/// A program on a machine that answers its own message boxes.
class ProgramTest : public ::testing::Test {
  protected:
    /// Drive M: of the machine is the host's folder `modules`, by default the folder of the components.
    explicit ProgramTest(const std::string& modules = TEST_MODULE_FOLDER);
    ~ProgramTest() override;

    /// Opens and shows the frame, normally at (100, 80)-(740, 560), and waits until it has settled.
    void open(const platform::CRect& place = {100, 80, 740, 560});
    TestFrame& frame() { return *static_cast<TestFrame*>(app_->GetMainWnd()); }
    TestView& view() { return *static_cast<TestView*>(frame().GetActiveView()); }
    TestApplication& app() { return *app_; }
    Log& log() { return Log::instance(); }

    /// A visible child of the view, called `name` in the log.
    std::unique_ptr<TestWnd> child(const std::string& name, const platform::CRect& rect);

    /// Gives the program these dialogs.
    void useDialogs(std::span<const platform::DialogTemplate> dialogs);
    /// Shows a dialog in front of the frame, calls `use` when it is shown, and returns its result.
    int show(platform::CDialog& dialog, const std::function<void()>& use);

    // Actions of a user. Positions are in the window's client area.
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
