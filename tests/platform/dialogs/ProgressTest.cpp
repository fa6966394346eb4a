#include "platform/dialogs/Progress.h"

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>

#include "platform/text/GreekLiteral.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;
using namespace platform::literals;

namespace {

/// A machine whose clock advances only by sleeping, and on which boxes are shown.
class ProgressTest : public ProgramTest {
  protected:
    ProgressTest() : still_(::testing::TempDir(), MachineConfig(), Registry()) {
        still_.setVirtualTime(true);
        setMachine(&still_);
        progress_.emplace("Διαβάζονται οι φάκελοι…"_gr);
    }

    bool stepAfter(std::uint32_t milliseconds, std::uint64_t done = 1, std::uint64_t total = 4) {
        still_.sleep(milliseconds);
        return progress_->Step()(done, total);
    }
    static QProgressDialog* box() {
        return dynamic_cast<QProgressDialog*>(QApplication::activeModalWidget());
    }

    Machine still_;
    std::optional<CProgress> progress_;
};

TEST_F(ProgressTest, ShowsTheCursorAfterHalfASecondAndTheBoxAfterTwo) {
    EXPECT_TRUE(stepAfter(499));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(stepAfter(1));
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_TRUE(stepAfter(1499));
    EXPECT_EQ(box(), nullptr);
    EXPECT_TRUE(stepAfter(1));
    ASSERT_NE(box(), nullptr);
    EXPECT_EQ(box()->labelText(), "Διαβάζονται οι φάκελοι…");
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    EXPECT_EQ(box()->value() * 4, box()->maximum());
    EXPECT_TRUE(stepAfter(50, 3));
    EXPECT_EQ(box()->value() * 4, box()->maximum() * 3);
    // The total is not known.
    EXPECT_TRUE(stepAfter(50, 3, 0));
    EXPECT_EQ(box()->maximum(), 0);
}

TEST_F(ProgressTest, StaysCancelledAndLeavesNothingBehind) {
    EXPECT_TRUE(stepAfter(2000));
    ASSERT_NE(box(), nullptr);
    auto* const button = box()->findChild<QPushButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), "Άκυρο");
    button->click();
    EXPECT_FALSE(stepAfter(50));
    EXPECT_FALSE(stepAfter(0));
    EXPECT_TRUE(progress_->Cancelled());
    progress_.reset();
    EXPECT_EQ(box(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace

}  // namespace windows_test
