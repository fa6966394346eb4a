#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <array>

#include "platform/dialogs/DataExchange.h"
#include "platform/dialogs/Dialog.h"
#include "platform/text/GreekLiteral.h"
#include "platform/widgets/Edit.h"
#include "platform/widgets/ListBox.h"
#include "platform/widgets/TreeCtrl.h"
#include "tests/support/windows/TestProgram.h"

/// The standard controls in a dialog, used as a user would.
namespace windows_test {

using namespace platform;
using namespace platform::literals;
using Kind = DialogControlKind;

namespace {

enum Id { idEdit = 101, idNarrow, idList, idPlain, idTree };

constexpr DWORD shown = WS_VISIBLE | WS_TABSTOP;
constexpr std::array controls = {
    DialogControl{Kind::edit, idEdit, CRect::at(5, 15, 60, 12), {}, 0, shown},
    DialogControl{Kind::listBox, idList, CRect::at(5, 30, 60, 60), {}, 0, shown | LBS_SORT},
    DialogControl{Kind::listBox, idPlain, CRect::at(5, 30, 1, 1), {}, 0, WS_TABSTOP},
    DialogControl{Kind::edit, idNarrow, CRect::at(5, 95, 30, 12), {}, 0, shown},
    DialogControl{Kind::treeView, idTree, CRect::at(70, 70, 120, 60)},
};
constexpr std::array dialogs = {DialogTemplate{600, "Στοιχεία"_gr, {200, 160}, controls}};

class ControlsDialog : public CDialog {
  public:
    ControlsDialog() : CDialog(600) {}
    CEdit edit;
    CListBox list;
    CListBox plain;
    CTreeCtrl tree;

  protected:
    void DoDataExchange(CDataExchange& exchange) override {
        DDX_Control(exchange, idEdit, edit);
        DDX_Control(exchange, idList, list);
        DDX_Control(exchange, idPlain, plain);
        DDX_Control(exchange, idTree, tree);
    }
};

class ControlsTest : public ProgramTest {
  protected:
    ControlsTest() { useDialogs(dialogs); }
    /// Ends the dialog after `use`.
    void show(const std::function<void()>& use) {
        ProgramTest::show(dialog_, [&] {
            use();
            dialog_.EndDialog(IDOK);
        });
    }

    ControlsDialog dialog_;
};

TEST_F(ControlsTest, TheVisibleWidthOfAnEditStopsTypingOnly) {
    show([&] {
        dialog_.GotoDlgCtrl(idNarrow);
        auto& narrow = dynamic_cast<QLineEdit&>(*QApplication::focusWidget());
        narrow.setText(QStringLiteral("ΩΩΩΩ"));
        QTest::sendKeyEvent(QTest::Click, &narrow, Qt::Key_unknown, QChar(u'Ω'), Qt::NoModifier);
        EXPECT_EQ(narrow.text(), QStringLiteral("ΩΩΩΩ"));
        dialog_.SetDlgItemText(idNarrow, "πολύ μακρύ"_gr);
        EXPECT_EQ(dialog_.GetDlgItemText(idNarrow), "πολύ μακρύ"_gr);
    });
}

TEST_F(ControlsTest, SortedListFindsByPrefixFromTheEntryAfter) {
    show([&] {
        for (const auto word : {"οξύ"_gr, "Νερό"_gr, "νέον"_gr, "άζωτο"_gr, "αέρας"_gr, "οξεία"_gr}) {
            dialog_.list.AddString(word);
            dialog_.plain.AddString(word);
        }
        // In order: αέρας, άζωτο, νέον, Νερό, οξεία, οξύ.
        EXPECT_EQ(dialog_.plain.GetText(0), "οξύ"_gr);
        EXPECT_EQ(dialog_.plain.GetText(6), "");
        struct Case {
            int after;
            int found;
            std::string_view prefix;
        };
        const Case cases[] = {{0, 4, "οξ"_gr}, {4, 5, "ΟΞ"_gr}, {5, 4, "οξ"_gr},
                              {0, 0, "α"_gr},  {0, 2, "Ν"_gr},  {-1, 0, ""},
                              {0, 1, ""},      {0, -1, "ζ"_gr}, {0, 3, "νερό"_gr}};
        for (const Case& row : cases) EXPECT_EQ(dialog_.list.FindString(row.after, row.prefix), row.found);
        dialog_.list.ResetContent();
        EXPECT_EQ(dialog_.list.FindString(0, "α"_gr), -1);
    });
}

TEST_F(ControlsTest, LinesOfAnEditFillItsHeightShownOrNot) {
    open();
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_BORDER | ES_MULTILINE, {0, 0, 260, 1000}, view(), 77));
    edit.SetFont({"Arial Greek", -11});
    constexpr int lineHeight = 15;
    std::string words;
    for (int i = 0; i < 60; ++i) words += std::string("Ηλεκτρόλυση "_gr) + std::to_string(i) + " ";
    const struct {
        std::string text;
        int least, most;
    } cases[] = {{"", 1, 1},      {"a", 1, 1},     {"a\r\nb\r\nc", 3, 3},
                 {"a\r\n", 2, 2}, {words, 15, 30}, {std::string(400, 'W'), 15, 30}};
    for (const auto& c : cases) {
        edit.ShowWindow(SW_HIDE);
        edit.MoveWindow({0, 0, 260, 1000});
        edit.SetWindowText(c.text);
        const int lines = edit.GetLineCount();
        EXPECT_GE(lines, c.least) << c.text;
        EXPECT_LE(lines, c.most) << c.text;
        edit.MoveWindow(CRect::at(10, 10, 260, lineHeight * lines + 2));
        edit.ShowWindow(SW_SHOW);
        settle();
        EXPECT_EQ(edit.GetLineCount(), lines) << c.text;
        EXPECT_EQ(edit.GetWindowText(), c.text);
        // Neither the last line nor a long word is cut off.
        const auto& widget = dynamic_cast<QTextEdit&>(widgetOf(edit));
        EXPECT_LE(widget.document()->size().height(), edit.GetClientRect().Height()) << c.text;
        EXPECT_LE(widget.document()->idealWidth(), edit.GetClientRect().Width()) << c.text;
    }
}

TEST_F(ControlsTest, AReadOnlyEditTakesNoTextFromAnInputMethod) {
    open();
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_MULTILINE, {0, 0, 260, 100}, view(), 77));
    edit.SetWindowText("a");
    edit.SetReadOnly();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("ά"));
    QCoreApplication::sendEvent(&widgetOf(edit), &event);
    EXPECT_EQ(edit.GetWindowText(), "a");
}

TEST_F(ControlsTest, ObjectsOutliveTheirControls) {
    show([] {});
    EXPECT_EQ(dialog_.tree.GetSafeHwnd(), 0);
    EXPECT_EQ(dialog_.list.GetCurSel(), -1);
    dialog_.edit.SetWindowText("x");
    EXPECT_EQ(dialog_.edit.GetWindowText(), "");
    // The objects are bound again when the dialog is shown again.
    show([&] { EXPECT_TRUE(dialog_.tree.Bound()); });
}

}  // namespace

}  // namespace windows_test
