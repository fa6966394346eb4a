#include "platform/dialogs/Dialog.h"

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <array>

#include "platform/input/KeyboardFocus.h"
#include "platform/qt/WindowTable.h"
#include "platform/text/GreekLiteral.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;
using namespace platform::literals;

namespace {

constexpr UINT idTemplate = 500;
constexpr int idText = 1001;
constexpr int idOther = 1002;

constexpr std::array controls = {
    DialogControl{DialogControlKind::staticText, idText, CRect::at(7, 7, 60, 8), "Αρχή"_gr},
    DialogControl{DialogControlKind::defaultPushButton, IDOK, CRect::at(90, 7, 50, 14), "OK"},
    DialogControl{DialogControlKind::pushButton, IDCANCEL, CRect::at(90, 24, 50, 14), "Άκυρο"_gr},
    DialogControl{DialogControlKind::pushButton, idOther, CRect::at(90, 41, 50, 14), "Άλλο"_gr},
};
constexpr std::array dialogs = {DialogTemplate{idTemplate, "Διάλογος"_gr, {147, 62}, controls}};

class TestDialog : public CDialog {
  public:
    explicit TestDialog(UINT id = idTemplate) : CDialog(id) {}
    static constexpr CRuntimeClass runtimeClass{"TestDialog"};
    const CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    bool endsAtOnce = false;

  protected:
    bool OnInitDialog() override {
        SetDlgItemText(idText, "Τέλος"_gr);
        SetDlgItemText(77, "nobody");
        if (endsAtOnce) EndDialog(idOther);
        return CDialog::OnInitDialog();
    }
};

class DialogTest : public ProgramTest {
  protected:
    DialogTest() { useDialogs(dialogs); }
    int show(const std::function<void()>& use) { return ProgramTest::show(dialog_, use); }
    void key(Qt::Key key) {
        QTest::sendKeyEvent(QTest::Click, widgetOf(dialog_).windowHandle(), key, QString(), Qt::NoModifier);
    }
    TestDialog dialog_;
};

/// What Qt does with the window of a dialog to which a browser is added.
struct NativeWindow : QWidget {
    static void makeAnew(QWidget& widget) {
        (widget.*&NativeWindow::destroy)(true, true);
        (widget.*&NativeWindow::create)(0, true, true);
        widget.windowHandle()->setVisible(true);
    }
};

TEST_F(DialogTest, KeepsInputFromOthersWhenItsNativeWindowIsMadeAnew) {
    show([&] {
        NativeWindow::makeAnew(widgetOf(dialog_));
        EXPECT_EQ(QApplication::activeModalWidget(), &widgetOf(dialog_));
        dialog_.EndDialog(IDOK);
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(DialogUnits, AreRoundedAwayFromZeroWithoutOverflow) {
    EXPECT_EQ(dialogPixels(CSize{-1, -4}), (CSize{-2, -7}));
    EXPECT_EQ(MulDiv(2000000, 3000, 4), 1500000000);
}

TEST_F(DialogTest, ShowsItsTemplateInTheMiddleOfTheFrame) {
    show([&] {
        const CRect place = dialog_.GetWindowRect();
        EXPECT_EQ(dialog_.GetClientRect(), CRect::at(0, 0, 221, 101));
        EXPECT_NEAR(place.left + place.right, 100 + 740, 2);
        EXPECT_NEAR(place.top + place.bottom, 80 + 560, 2);
        EXPECT_EQ(dialog_.GetDlgItemText(idText), "Τέλος"_gr);
        EXPECT_EQ(dialog_.GetDlgItemText(IDCANCEL), "Άκυρο"_gr);
        EXPECT_EQ(dialog_.GetDlgItemText(77), "");
        EXPECT_EQ(WindowTable::instance().find(GetFocus())->id, IDOK);
        EXPECT_EQ(QApplication::focusWidget()->geometry(), QRect(135, 11, 75, 23));
        dialog_.EndDialog(IDOK);
    });
}

TEST_F(DialogTest, EndsByButtonsKeysAndItsOwnCaption) {
    struct Case {
        const char* name;
        std::function<void()> act;
        int result;
    };
    const Case cases[] = {
        {"Cancel", [&] { click(dialog_, 140, 45); }, IDCANCEL},
        {"Enter on Cancel",
         [&] {
             key(Qt::Key_Tab);
             key(Qt::Key_Enter);
         },
         IDCANCEL},
        {"Enter in the empty",
         [&] {
             widgetOf(dialog_).setFocus();
             key(Qt::Key_Return);
         },
         IDOK},
        {"close", [&] { widgetOf(dialog_).close(); }, IDCANCEL},
        {"value of its own", [&] { dialog_.EndDialog(42); }, 42},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(show(row.act), row.result) << row.name;
        settle();
        EXPECT_EQ(dialog_.GetSafeHwnd(), 0) << row.name;
        EXPECT_EQ(GetFocus(), view().GetSafeHwnd()) << row.name;
    }
}

TEST_F(DialogTest, IsNotShownWhenItEndsAtOnceOrHasNoTemplate) {
    dialog_.endsAtOnce = true;
    EXPECT_EQ(dialog_.DoModal(), idOther);
    EXPECT_EQ(TestDialog(501).DoModal(), -1);
}

}  // namespace

}  // namespace windows_test
