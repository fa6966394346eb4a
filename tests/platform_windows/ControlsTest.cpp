#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <array>

#include "platform/framework/DataExchange.h"
#include "platform/framework/Dialog.h"
#include "platform/handles/WindowTable.h"
#include "platform/text/GreekLiteral.h"
#include "platform/windows/Edit.h"
#include "platform/windows/ListBox.h"
#include "platform/windows/ListCtrl.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/TreeCtrl.h"
#include "tests/platform_windows/TestProgram.h"

/// The standard controls inside a dialog, used as a person would.
namespace windows_test {

using namespace platform;
using namespace platform::literals;
using Kind = DialogControlKind;

namespace {

enum Id { idEdit = 101, idNarrow, idList, idPlain, idReport, idTree, idCombo, idCheck };

constexpr DWORD shown = WS_VISIBLE | WS_TABSTOP;
constexpr std::array controls = {
    DialogControl{Kind::staticText, IDC_STATIC, CRect::at(5, 5, 60, 8), "Λέξη"_gr},
    DialogControl{Kind::edit, idEdit, CRect::at(5, 15, 60, 12), {}, 0, shown | ES_LOWERCASE | ES_AUTOHSCROLL},
    DialogControl{Kind::listBox, idList, CRect::at(5, 30, 60, 60), {}, 0, shown | LBS_SORT},
    DialogControl{Kind::listBox, idPlain, CRect::at(5, 30, 1, 1), {}, 0, WS_TABSTOP},
    DialogControl{Kind::edit, idNarrow, CRect::at(5, 95, 30, 12), "Στενό"_gr, 0, WS_VISIBLE},
    DialogControl{Kind::listView, idReport, CRect::at(70, 5, 120, 60), {}, 0, shown | LVS_SORTASCENDING},
    DialogControl{Kind::treeView, idTree, CRect::at(70, 70, 120, 60)},
    DialogControl{Kind::comboBox, idCombo, CRect::at(5, 110, 60, 80)},
    DialogControl{Kind::checkBox, idCheck, CRect::at(5, 130, 60, 10), "Και τα δύο"_gr, 0,
                  shown | BS_LEFTTEXT},
    DialogControl{Kind::defaultPushButton, IDOK, CRect::at(140, 135, 50, 14), "OK", 0, shown | WS_DISABLED},
};
constexpr std::array dialogs = {DialogTemplate{600, "Στοιχεία"_gr, {200, 160}, controls}};

class ControlsDialog : public CDialog {
  public:
    ControlsDialog() : CDialog(600) {}
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {
            OnControl<&ControlsDialog::onPicked>(idList, LBN_SELCHANGE),
            OnControl<&ControlsDialog::onDoubleClick>(idList, LBN_DBLCLK),
        };
        static const MessageMap map{CDialog::GetMessageMap(), entries};
        return &map;
    }

    CEdit edit;
    CListBox list;
    CListBox plain;
    CListCtrl report;
    CTreeCtrl tree;
    std::string narrow = "αρχή"_gr.data();

  protected:
    void DoDataExchange(CDataExchange& exchange) override {
        DDX_Control(exchange, idEdit, edit);
        DDX_Control(exchange, idList, list);
        DDX_Control(exchange, idPlain, plain);
        DDX_Control(exchange, idReport, report);
        DDX_Control(exchange, idTree, tree);
        DDX_Text(exchange, idNarrow, narrow);
        DDV_MaxChars(exchange, narrow, 6);
    }

  private:
    void onPicked() { Log::instance().add("picked " + std::to_string(list.GetCurSel())); }
    void onDoubleClick() { Log::instance().add("double " + std::to_string(list.GetCurSel())); }
};

class ControlsTest : public ProgramTest {
  protected:
    ControlsTest() { useDialogs(dialogs); }
    /// Ends the dialog after `use`.
    void show(const std::function<void()>& use) {
        ProgramTest::show(dialog_, [&] {
            log().clear();
            use();
            dialog_.EndDialog(IDOK);
        });
    }
    QWidget& control(int id) { return *WindowTable::instance().widget(dialog_.GetDlgItem(id)); }
    template <class Widget>
    Widget& native(int id) {
        return dynamic_cast<Widget&>(control(id));
    }
    void type(const QString& text) {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, c,
                                Qt::NoModifier);
    }
    void key(Qt::Key key) {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key, QString(), Qt::NoModifier);
    }

    ControlsDialog dialog_;
};

TEST_F(ControlsTest, EditKeepsItsLimitsOnlyAgainstTyping) {
    show([&] {
        EXPECT_EQ(dialog_.GetDlgItemText(idNarrow), "αρχή"_gr);
        dialog_.GotoDlgCtrl(idNarrow);
        auto& narrow = native<QLineEdit>(idNarrow);
        key(Qt::Key_End);
        type(QStringLiteral("1234"));
        EXPECT_EQ(narrow.text(), QStringLiteral("αρχή12"));
        // The visible width stops typing too.
        narrow.setText(QStringLiteral("ΩΩΩΩ"));
        type(QStringLiteral("Ω"));
        EXPECT_EQ(narrow.text(), QStringLiteral("ΩΩΩΩ"));
        // What the program sets is shown whole, and refused when the dialog is to end.
        dialog_.SetDlgItemText(idNarrow, "πολύ μακρύ"_gr);
        type(QStringLiteral("x"));
        EXPECT_EQ(dialog_.GetDlgItemText(idNarrow), "πολύ μακρύ"_gr);
        EXPECT_FALSE(dialog_.UpdateData(true));
        const auto boxes = machine_.trace().take();
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_NE(std::get<TraceBox>(boxes[0]).text.find(" 6 "), std::string::npos);
        EXPECT_EQ(narrow.selectedText(), QStringLiteral("πολύ μακρύ"));
        key(Qt::Key_Delete);
        EXPECT_TRUE(dialog_.UpdateData(true));
        EXPECT_EQ(dialog_.narrow, "");
    });
}

TEST_F(ControlsTest, SortedListFindsByPrefixFromTheEntryAfter) {
    show([&] {
        for (const auto word : {"οξύ"_gr, "Νερό"_gr, "νέον"_gr, "άζωτο"_gr, "αέρας"_gr, "οξεία"_gr}) {
            dialog_.list.AddString(word);
            dialog_.plain.AddString(word);
        }
        Lines order;
        for (int i = 0; i < dialog_.list.GetCount(); ++i) order.push_back(dialog_.list.GetText(i));
        EXPECT_EQ(order, (Lines{"αέρας"_gr.data(), "άζωτο"_gr.data(), "νέον"_gr.data(), "Νερό"_gr.data(),
                                "οξεία"_gr.data(), "οξύ"_gr.data()}));
        EXPECT_EQ(dialog_.plain.GetText(0), "οξύ"_gr);
        EXPECT_EQ(dialog_.plain.GetText(6), "");
        struct Case {
            int after;
            std::string_view prefix;
            int found;
        };
        const Case cases[] = {{0, "οξ"_gr, 4}, {4, "ΟΞ"_gr, 5}, {5, "οξ"_gr, 4},
                              {0, "α"_gr, 0},  {0, "Ν"_gr, 2},  {-1, "", 0},
                              {0, "", 1},      {0, "ζ"_gr, -1}, {0, "νερό"_gr, 3}};
        for (const Case& row : cases) EXPECT_EQ(dialog_.list.FindString(row.after, row.prefix), row.found);
        dialog_.list.ResetContent();
        EXPECT_EQ(dialog_.list.FindString(0, "α"_gr), -1);
    });
}

TEST_F(ControlsTest, ListTellsWhatTheUserSelectsAndNotWhatTheProgramDoes) {
    show([&] {
        for (const auto word : {"ένα"_gr, "δύο"_gr, "τρία"_gr}) dialog_.list.AddString(word);
        dialog_.list.SetCurSel(2);
        dialog_.list.SetCurSel(-1);
        EXPECT_EQ(dialog_.list.GetCurSel(), -1);
        EXPECT_EQ(log().count("picked"), 0U);
        auto& view = native<QAbstractItemView>(idList);
        const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
        key(Qt::Key_Down);
        key(Qt::Key_Home);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
        EXPECT_EQ(log().lines({"picked", "double"}),
                  (Lines{"picked 1", "picked 2", "picked 0", "picked 1", "double 1"}));
    });
}

TEST_F(ControlsTest, ReportKeepsRowsInOrderAndSortsThem) {
    show([&] {
        dialog_.report.InsertColumn("Όνομα"_gr, 90);
        dialog_.report.InsertColumn("Θέμα"_gr, 70);
        struct Row {
            std::string_view name, topic;
        };
        const Row rows[] = {
            {"νερό"_gr, "β"_gr}, {"αέρας"_gr, "α"_gr}, {"Άζωτο"_gr, "γ"_gr}, {"νερό"_gr, "α"_gr}};
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            const int row = dialog_.report.InsertItem(rows[i].name);
            dialog_.report.SetItemText(row, 1, rows[i].topic);
            dialog_.report.SetItemData(row, static_cast<LPARAM>(i));
        }
        const auto order = [&] {
            std::vector<LPARAM> data;
            for (int i = 0; i < dialog_.report.GetItemCount(); ++i)
                data.push_back(dialog_.report.GetItemData(i));
            return data;
        };
        EXPECT_EQ(order(), (std::vector<LPARAM>{1, 2, 0, 3}));
        dialog_.report.SelectItem(2);
        dialog_.report.SortItems([&](LPARAM a, LPARAM b) {
            return rows[static_cast<std::size_t>(a)].topic.compare(rows[static_cast<std::size_t>(b)].topic);
        });
        EXPECT_EQ(order(), (std::vector<LPARAM>{1, 3, 0, 2}));
        EXPECT_EQ(dialog_.report.GetSelectedItem(), 2);
        EXPECT_EQ(dialog_.report.GetItemText(3, 1), "γ"_gr);
        EXPECT_EQ(dialog_.report.GetItemText(9, 1), "");
        EXPECT_EQ(dialog_.report.GetColumnWidth(1), 70);
    });
}

TEST_F(ControlsTest, TreeKnowsItsItems) {
    show([&] {
        CTreeCtrl& tree = dialog_.tree;
        const HTREEITEM second = tree.InsertItem("Νερό"_gr, nullptr, TreePlace::sorted);
        const HTREEITEM first = tree.InsertItem("άζωτο"_gr, nullptr, TreePlace::sorted);
        const HTREEITEM child = tree.InsertItem("β"_gr, second);
        const HTREEITEM other = tree.InsertItem("α"_gr, second);
        tree.SetItemData(child, -5);
        EXPECT_EQ(tree.GetRootItem(), first);
        EXPECT_EQ(tree.GetNextSiblingItem(first), second);
        EXPECT_EQ(tree.GetPrevSiblingItem(first), nullptr);
        EXPECT_EQ(tree.GetNextSiblingItem(second), nullptr);
        EXPECT_EQ(tree.GetChildItem(second), child);
        EXPECT_EQ(tree.GetParentItem(child), second);
        EXPECT_EQ(tree.GetParentItem(second), nullptr);
        EXPECT_EQ(tree.GetNextVisibleItem(second), nullptr);
        tree.Expand(second);
        EXPECT_TRUE(tree.IsExpanded(second));
        EXPECT_EQ(tree.GetNextVisibleItem(second), child);
        EXPECT_EQ(tree.GetPrevVisibleItem(second), first);
        tree.SortChildren(second);
        EXPECT_EQ(tree.GetChildItem(second), other);
        tree.SelectItem(child);
        EXPECT_EQ(tree.GetSelectedItem(), child);
        EXPECT_EQ(tree.GetItemData(child), -5);
        tree.SetItemText(child, "γ"_gr);
        EXPECT_EQ(tree.GetItemText(child), "γ"_gr);
        EXPECT_EQ(tree.GetCount(), 4);
        tree.DeleteItem(second);
        EXPECT_EQ(tree.GetCount(), 1);
        EXPECT_EQ(tree.GetItemText(nullptr), "");
        EXPECT_EQ(tree.GetChildItem(nullptr), nullptr);
        tree.DeleteAllItems();
        EXPECT_EQ(tree.GetRootItem(), nullptr);
        EXPECT_EQ(tree.GetSelectedItem(), nullptr);
    });
}

TEST_F(ControlsTest, TabGoesThroughTheTemplateAndPassesOverTheRest) {
    show([&] {
        std::vector<int> visited;
        for (int i = 0; i < 6; ++i) {
            visited.push_back(WindowTable::instance().find(GetFocus())->id);
            key(Qt::Key_Tab);
        }
        EXPECT_EQ(visited, (std::vector<int>{idEdit, idList, idReport, idTree, idCombo, idCheck}));
        dialog_.EnableDlgItem(IDOK, true);
        EXPECT_TRUE(dialog_.IsDlgItemEnabled(IDOK));
    });
}

TEST_F(ControlsTest, ControlsAreNamedAfterTheirLabels) {
    show([&] {
        EXPECT_EQ(control(idEdit).accessibleName(), QStringLiteral("Λέξη"));
        EXPECT_EQ(control(idNarrow).accessibleName(), QStringLiteral("Στενό"));
        QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&control(idList));
        EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Λέξη"));
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
        // Neither the last line nor a long word is cut.
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
    EXPECT_EQ(dialog_.list.GetCount(), 0);
    dialog_.edit.SetWindowText("x");
    EXPECT_EQ(dialog_.edit.GetWindowText(), "");
    // And are bound anew when the dialog is shown once more.
    show([&] { EXPECT_TRUE(dialog_.tree.bound()); });
}

}  // namespace

}  // namespace windows_test
