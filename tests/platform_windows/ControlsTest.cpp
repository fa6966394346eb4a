#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>
#include <array>

#include "platform/framework/DataExchange.h"
#include "platform/framework/Dialog.h"
#include "platform/framework/Resources.h"
#include "platform/handles/WindowTable.h"
#include "platform/text/GreekLiteral.h"
#include "platform/windows/Button.h"
#include "platform/windows/ComboBox.h"
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

/// A tree that remembers the mouse messages that it lets through.
class WatchedTree : public CTreeCtrl {
  public:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {
            OnMessage<WM_MOUSEMOVE, &WatchedTree::onMove>(),
            OnMessage<WM_LBUTTONUP, &WatchedTree::onUp>(),
        };
        static const MessageMap map{CTreeCtrl::GetMessageMap(), entries};
        return &map;
    }

  private:
    void onMove(UINT, CPoint p) {
        UINT flags = 0;
        const HTREEITEM item = HitTest(p, flags);
        if (capturing) Log::instance().add("over " + GetItemText(item) + " " + std::to_string(flags));
        if (!capturing) Default();
    }
    void onUp(UINT, CPoint) {
        if (!capturing) return Default();
        capturing = false;
        ReleaseCapture();
    }

  public:
    bool capturing = false;
};

class ControlsDialog : public CDialog {
  public:
    ControlsDialog() : CDialog(600) {}
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageMapEntry entries[] = {
            OnControl<&ControlsDialog::onUpdate>(idEdit, EN_UPDATE),
            OnControl<&ControlsDialog::onChange>(idEdit, EN_CHANGE),
            OnControl<&ControlsDialog::onPicked>(idList, LBN_SELCHANGE),
            OnControl<&ControlsDialog::onDoubleClick>(idList, LBN_DBLCLK),
            OnControl<&ControlsDialog::onDrive>(idCombo, CBN_SELCHANGE),
            OnCommandId<&ControlsDialog::onCheck>(idCheck),
            OnNotify<&ControlsDialog::onRow>(idReport, NM_CLICK),
            OnNotify<&ControlsDialog::onRow>(idReport, NM_DBLCLK),
            OnNotify<&ControlsDialog::onRow>(idReport, LVN_COLUMNCLICK),
            OnNotify<&ControlsDialog::onLeave>(idReport, NM_KILLFOCUS),
            OnNotify<&ControlsDialog::onExpanding>(idTree, TVN_ITEMEXPANDING),
            OnNotify<&ControlsDialog::onBeginDrag>(idTree, TVN_BEGINDRAG),
            OnNotify<&ControlsDialog::onTreeKey>(idTree, TVN_KEYDOWN),
            OnNotify<&ControlsDialog::onTree>(idTree, NM_DBLCLK),
            OnNotify<&ControlsDialog::onTree>(idTree, NM_RETURN),
        };
        static const MessageMap map{CDialog::GetMessageMap(), entries};
        return &map;
    }

    CEdit edit;
    CListBox list;
    CListBox plain;
    CListCtrl report;
    WatchedTree tree;
    CComboBox combo;
    CButton check;
    std::string narrow = "αρχή"_gr.data();
    /// What onUpdate does with the edit's text.
    std::function<void()> update;

  protected:
    void DoDataExchange(CDataExchange& exchange) override {
        DDX_Control(exchange, idEdit, edit);
        DDX_Control(exchange, idList, list);
        DDX_Control(exchange, idPlain, plain);
        DDX_Control(exchange, idReport, report);
        DDX_Control(exchange, idTree, tree);
        DDX_Control(exchange, idCombo, combo);
        DDX_Control(exchange, idCheck, check);
        DDX_Text(exchange, idNarrow, narrow);
        DDV_MaxChars(exchange, narrow, 6);
    }

  private:
    static void note(std::string line) { Log::instance().add(std::move(line)); }
    void onUpdate() {
        note("update " + edit.GetWindowText());
        if (update) update();
    }
    void onChange() { note("change " + edit.GetWindowText()); }
    void onPicked() { note("picked " + std::to_string(list.GetCurSel())); }
    void onDoubleClick() { note("double " + std::to_string(list.GetCurSel())); }
    void onDrive() { note("drive " + combo.GetLBText(combo.GetCurSel())); }
    void onCheck() { note(check.GetCheck() ? "ticked" : "cleared"); }
    LRESULT onRow(NMLISTVIEW& row) {
        note("row " + std::to_string(row.code) + " " + std::to_string(row.iItem) + "," +
             std::to_string(row.iSubItem));
        return 0;
    }
    LRESULT onLeave(NMHDR&) {
        note("left for " + std::to_string(GetFocus() == GetDlgItem(idEdit)));
        return 0;
    }
    LRESULT onExpanding(NMTREEVIEW& change) {
        note("expanding " + tree.GetItemText(change.item));
        return 0;
    }
    LRESULT onBeginDrag(NMTREEVIEW& drag) {
        note("drag " + tree.GetItemText(drag.item));
        tree.capturing = true;
        tree.SetCapture();
        return 0;
    }
    LRESULT onTreeKey(NMTVKEYDOWN& key) {
        note("key " + std::to_string(key.wVKey));
        return 0;
    }
    LRESULT onTree(NMHDR& what) {
        note("tree " + std::to_string(what.code));
        return 0;
    }
};

class ControlsTest : public ProgramTest {
  protected:
    ControlsTest() {
        ResourceTable resources = Resources();
        resources.dialogs = dialogs;
        SetResources(resources);
    }

    /// Shows the dialog, fills nothing, and runs `use` once it is up.
    int show(const std::function<void()>& use) {
        if (!app().GetMainWnd()) open();
        QTimer::singleShot(0, [&] {
            settle();
            log().clear();
            use();
            dialog_.EndDialog(IDOK);
        });
        return dialog_.DoModal();
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
    std::vector<std::string> told() {
        std::vector<std::string> lines =
            log().lines({"update", "change", "picked", "double", "drive", "ticked", "cleared", "row", "left",
                         "expanding", "drag", "over", "key ", "tree "});
        log().clear();
        return lines;
    }
    using Lines = std::vector<std::string>;

    ControlsDialog dialog_;
};

TEST_F(ControlsTest, EditTellsOfChangesAndWritesSmallLetters) {
    show([&] {
        dialog_.edit.SetFocus();
        type(QStringLiteral("ΆβΓ"));
        EXPECT_EQ(dialog_.edit.GetWindowText(), "άβγ"_gr);
        EXPECT_EQ(told().back(), std::string("change ") + "άβγ"_gr.data());
        // A handler may write the field while it is told of a change, and is told of that too.
        dialog_.update = [&] {
            if (dialog_.edit.GetWindowText().ends_with(' ')) {
                dialog_.edit.SetWindowText("άβγ"_gr);
                dialog_.edit.SetSel(3, 3);
            }
        };
        type(QStringLiteral(" "));
        EXPECT_EQ(told().front(), std::string("update ") + "άβγ "_gr.data());
        EXPECT_EQ(dialog_.edit.GetWindowText(), "άβγ"_gr);
        EXPECT_EQ(native<QLineEdit>(idEdit).cursorPosition(), 3);
        dialog_.edit.SetSel(0, -1);
        type(QStringLiteral("Δ"));
        EXPECT_EQ(dialog_.edit.GetWindowText(), "δ"_gr);
    });
}

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
        EXPECT_EQ(told(), Lines{});
        auto& view = native<QAbstractItemView>(idList);
        const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
        key(Qt::Key_Down);
        key(Qt::Key_Home);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
        EXPECT_EQ(told(), (Lines{"picked 1", "picked 2", "picked 0", "picked 1", "double 1"}));
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

TEST_F(ControlsTest, ReportTellsOfClicksHeadersAndLeaving) {
    show([&] {
        dialog_.report.InsertColumn("Α"_gr, 60);
        dialog_.report.InsertColumn("Β"_gr, 60);
        for (const auto name : {"α"_gr, "β"_gr}) dialog_.report.InsertItem(name);
        auto& view = native<QTreeWidget>(idReport);
        const auto click = [&](QPoint where) {
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, where);
        };
        const QPoint second = view.visualRect(view.model()->index(1, 1)).center();
        log().clear();
        click(second);
        EXPECT_EQ(told(), (Lines{"row -2 1,-1"}));
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
        EXPECT_EQ(told(), (Lines{"row -3 1,-1"}));
        click(view.viewport()->rect().bottomLeft() + QPoint(3, -3));
        EXPECT_EQ(told(), (Lines{"row -2 -1,-1"}));
        QTest::mouseClick(view.header()->viewport(), Qt::LeftButton, {}, QPoint(90, 5));
        EXPECT_EQ(told(), (Lines{"row -108 -1,1"}));
        view.setFocus();
        log().clear();
        dialog_.edit.SetFocus();
        EXPECT_EQ(told(), (Lines{"left for 1"}));
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

TEST_F(ControlsTest, TreeTellsOfKeysAndOpening) {
    show([&] {
        const HTREEITEM folder = dialog_.tree.InsertItem("Φάκελος"_gr);
        dialog_.tree.InsertItem("μέσα"_gr, folder);
        dialog_.tree.SelectItem(folder);
        dialog_.tree.SetFocus();
        log().clear();
        key(Qt::Key_Delete);
        key(Qt::Key_Return);
        EXPECT_TRUE(dialog_.tree.IsExpanded(folder));
        key(Qt::Key_Left);
        EXPECT_FALSE(dialog_.tree.IsExpanded(folder));
        const std::string name = "Φάκελος"_gr.data();
        EXPECT_EQ(told(),
                  (Lines{"key 46", "key 13", "tree -4", "expanding " + name, "key 37", "expanding " + name}));
    });
}

TEST_F(ControlsTest, TreeHandsADragToTheProgram) {
    show([&] {
        const HTREEITEM first = dialog_.tree.InsertItem("a");
        const HTREEITEM second = dialog_.tree.InsertItem("b");
        (void)second;
        dialog_.tree.SelectItem(first);
        settle();
        auto& view = native<QTreeWidget>(idTree);
        const auto at = [&](int row) { return view.visualRect(view.model()->index(row, 0)).center(); };
        const QPoint far(QApplication::startDragDistance() + 1, 0);
        log().clear();
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at(0));
        QTest::mouseMove(view.viewport(), at(0) + QPoint(2, 0));
        QTest::mouseMove(view.viewport(), at(0) + far);
        ASSERT_TRUE(dialog_.tree.capturing);
        QTest::mouseMove(view.viewport(), at(1));
        QTest::mouseMove(view.viewport(), QPoint(20, view.viewport()->height() + 3));
        QTest::mouseMove(view.viewport(), QPoint(20, -3));
        QTest::mouseMove(view.viewport(), QPoint(-9, -3));
        QTest::mouseMove(view.viewport(), QPoint(20, view.viewport()->height() - 3));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at(1));
        EXPECT_FALSE(dialog_.tree.capturing);
        EXPECT_EQ(told(), (Lines{"drag a", "over b 70", "over  512", "over  256", "over  2304", "over  1"}));
    });
}

TEST_F(ControlsTest, ComboAndCheckBoxTellOfTheUser) {
    show([&] {
        EXPECT_EQ(dialog_.combo.AddString("Ένα"_gr), 0);
        EXPECT_EQ(dialog_.combo.GetCurSel(), -1);
        EXPECT_EQ(dialog_.combo.AddString("Δύο"_gr), 1);
        dialog_.combo.SetCurSel(0);
        dialog_.check.SetCheck(true);
        EXPECT_EQ(told(), Lines{});
        dialog_.combo.SetFocus();
        key(Qt::Key_Down);
        dialog_.check.SetFocus();
        key(Qt::Key_Space);
        EXPECT_EQ(told(), (Lines{std::string("drive ") + "Δύο"_gr.data(), "cleared"}));
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
