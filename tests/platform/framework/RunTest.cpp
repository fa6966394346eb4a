#include "platform/dialogs/MessageBox.h"
#include "platform/framework/Run.h"

#include <QApplication>
#include <QTimer>
#include <csignal>

#include "platform/qt/WindowTable.h"
#include "platform/text/GreekLiteral.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;
using namespace platform::literals;

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

TEST_F(RunTest, ClosesTheFrameWhenTheSessionEnds) {
    QTimer::singleShot(30, [&] {
        log().clear();
        std::raise(SIGTERM);
    });
    EXPECT_EQ(RunProgram(app()), 7);
    EXPECT_EQ(log().lines({"WM_CLOSE", "WM_DESTROY"}),
              (Lines{"frame WM_CLOSE", "frame WM_DESTROY", "view WM_DESTROY"}));
}

/// The view asks something when it is destroyed, on a machine that shows its boxes.
class UnattendedRunTest : public ProgramTest {
  protected:
    UnattendedRunTest() : shows_(::testing::TempDir(), MachineConfig(), Registry()) {
        setMachine(&shows_);
        limit_.callOnTimeout([this] {
            QWidget* const box = QApplication::activeModalWidget();
            waits_ = waits_ || box;
            if (box) box->close();
        });
        limit_.start(1000);
    }
    ~UnattendedRunTest() override { setMachine(&machine_); }

    /// What is written to standard error until the program has ended.
    std::string run() {
        QTimer::singleShot(20, [this] {
            view().on(WM_DESTROY, [](WPARAM) {
                EXPECT_EQ(AfxMessageBox("Σώθηκε;"_gr, BoxButtons::yesNo), BoxAnswer::no);
            });
        });
        testing::internal::CaptureStderr();
        EXPECT_EQ(RunProgram(app()), 7);
        EXPECT_FALSE(waits_);
        return testing::internal::GetCapturedStderr();
    }

  private:
    Machine shows_;
    QTimer limit_;  ///< ends a box that is shown after all
    bool waits_ = false;
};

TEST_F(UnattendedRunTest, WaitsForNoAnswerWhenTheSessionEnds) {
    QTimer::singleShot(40, [] { std::raise(SIGTERM); });
    EXPECT_TRUE(run().ends_with("Σώθηκε;\n"));
}

TEST_F(UnattendedRunTest, WaitsNoLongerWhenTheSessionEndsMeanwhile) {
    QTimer::singleShot(40, [this] { frame().PostMessage(WM_CLOSE); });
    QTimer::singleShot(200, [] { std::raise(SIGTERM); });
    EXPECT_EQ(run().find("Σώθηκε;"), std::string::npos);
}

TEST_F(RunTest, TellsThatTheDocumentCannotBeOpened) {
    static constexpr CRuntimeClass unmakable{"Unmakable"};
    const struct {
        const CRuntimeClass& document;
        const CRuntimeClass& frame;
        const CRuntimeClass& view;
    } cases[] = {{unmakable, TestFrame::runtimeClass, TestView::runtimeClass},
                 {TestDocument::runtimeClass, unmakable, TestView::runtimeClass},
                 {TestDocument::runtimeClass, TestFrame::runtimeClass, unmakable},
                 {TestDocument::runtimeClass, TestFrame::runtimeClass, TestDocument::runtimeClass}};
    machine_.trace().enable();
    for (const auto& row : cases) {
        app().AddDocTemplate(std::make_unique<CSingleDocTemplate>(row.document, row.frame, row.view));
        EXPECT_EQ(RunProgram(app()), 7);
        const auto done = machine_.trace().take();
        ASSERT_EQ(done.size(), 1U);
        EXPECT_EQ(std::get<TraceBox>(done[0]).text, "Δεν είναι δυνατή η δημιουργία νέου εγγράφου."_gr);
        EXPECT_TRUE(WindowTable::instance().all().empty());
    }
}

TEST_F(RunTest, BecomesIdle) {
    open();
    // The frame checks its place again a moment after it was shown.
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
