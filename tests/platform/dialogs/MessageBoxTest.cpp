#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/text/GreekLiteral.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;
using namespace platform::literals;

namespace {

/// A machine without prepared answers: boxes are shown.
class ShownBoxTest : public ProgramTest {
  protected:
    ShownBoxTest() : silent_(::testing::TempDir(), MachineConfig(), Registry()) { setMachine(&silent_); }

    /// Calls `answer` when the box is shown.
    void whenShown(const std::function<void(QMessageBox&)>& answer) {
        QTimer::singleShot(0, [answer] {
            auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            answer(*box);
        });
    }
    Machine silent_;
};

TEST_F(ShownBoxTest, ShowsTitleTextAndGreekButtons) {
    QString title, text;
    QStringList buttons;
    whenShown([&](QMessageBox& box) {
        title = box.windowTitle();
        text = box.text();
        for (const QAbstractButton* button : box.buttons()) buttons << button->text();
        box.buttons().front()->click();
    });
    EXPECT_EQ(AfxMessageBox("Μία <b>\r\nδύο"_gr, BoxButtons::yesNo), BoxAnswer::yes);
    EXPECT_EQ(title, QStringLiteral("Δοκιμή"));
    EXPECT_EQ(text, QStringLiteral("Μία <b>\nδύο"));
    EXPECT_EQ(buttons, (QStringList{QStringLiteral("Ναι"), QStringLiteral("Όχι")}));
}

TEST_F(ShownBoxTest, ItsEndCountsAsTheLastButton) {
    whenShown([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(AfxMessageBox("a", BoxButtons::yesNo), BoxAnswer::no);
    open();
    whenShown([&](QMessageBox&) { frame().DestroyWindow(); });
    EXPECT_EQ(AfxMessageBox("a"), BoxAnswer::ok);
}

TEST_F(ShownBoxTest, StaysBeforeAWindowThatStaysOnTop) {
    open();
    widgetOf(frame()).setWindowFlag(Qt::WindowStaysOnTopHint);
    widgetOf(frame()).show();
    whenShown([](QMessageBox& box) {
        EXPECT_TRUE(box.windowFlags() & Qt::WindowStaysOnTopHint);
        box.close();
    });
    AfxMessageBox("a");
}

}  // namespace

}  // namespace windows_test
