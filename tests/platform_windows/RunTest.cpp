#include "platform/framework/Run.h"

#include <QApplication>
#include <QTimer>

#include "platform/handles/WindowTable.h"
#include "tests/platform_windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class RunTest : public ProgramTest {};

TEST_F(RunTest, RunsUntilTheFrameIsClosed) {
    bool shown = false;
    QTimer::singleShot(30, [&] {
        shown = frame().IsWindowVisible();
        frame().PostMessage(WM_CLOSE);
    });
    EXPECT_EQ(RunProgram(app()), 7);
    EXPECT_TRUE(shown);
    EXPECT_TRUE(WindowTable::instance().all().empty());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(RunTest, BecomesIdle) {
    open();
    // The frame's place is looked at once more a moment after it was shown.
    settleFor(200);
    log().clear();
    int events = 0;
    class Counter : public QObject {
      public:
        explicit Counter(int& count) : count_(count) {}
        bool eventFilter(QObject*, QEvent*) override {
            ++count_;
            return false;
        }

      private:
        int& count_;
    } counter(events);
    qApp->installEventFilter(&counter);
    settleFor(100);
    EXPECT_EQ(events, 0);
    EXPECT_TRUE(log().lines().empty());
}

}  // namespace

}  // namespace windows_test
