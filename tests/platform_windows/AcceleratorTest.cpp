#include <QDialog>
#include <QLineEdit>
#include <QTest>

#include "tests/platform_windows/TestProgram.h"

namespace windows_test {

namespace {

/// A text field inside of the view, where Ctrl+Z undoes what was typed.
class AcceleratorTest : public ProgramTest {
  protected:
    void SetUp() override {
        open();
        edit_ = new QLineEdit(&widgetOf(view()));
        edit_->show();
        edit_->setFocus();
        pressKey(Qt::Key_A);
        ASSERT_EQ(edit_->text().toStdString(), "a");
        log().clear();
    }
    QLineEdit* edit_ = nullptr;
};

TEST_F(AcceleratorTest, RunsItsCommandInsteadOfReachingTheTextField) {
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    pressKey(Qt::Key_Backspace, Qt::AltModifier);
    pressKey(Qt::Key(0x0396), Qt::ControlModifier);
    EXPECT_EQ(log().count("view command"), 3U) << "the third is the same key on a Greek keyboard";
    pressKey(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(log().count("document command"), 1U);
    EXPECT_EQ(edit_->text().toStdString(), "a");
}

TEST_F(AcceleratorTest, WithADisabledCommandGoesOnToTheTextField) {
    view().enabled = false;
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(log().count("view command"), 0U);
    EXPECT_EQ(edit_->text().toStdString(), "");
}

TEST_F(AcceleratorTest, NeedsExactlyItsModifiers) {
    pressKey(Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
    pressKey(Qt::Key_Z);
    EXPECT_EQ(log().count("view command"), 0U);
    EXPECT_EQ(edit_->text().toStdString(), "az");
}

TEST_F(AcceleratorTest, IsUnknownToDialogs) {
    QDialog dialog(&widgetOf(frame()));
    QLineEdit edit(&dialog);
    dialog.show();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_B);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(log().count("view command"), 0U);
    EXPECT_EQ(edit.text().toStdString(), "");
}

}  // namespace

}  // namespace windows_test
