#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTextEdit>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/DialogControls.h"
#include "platform/qt/QtConvert.h"
#include "platform/widgets/ListBoxView.h"
#include "platform/widgets/ReportView.h"
#include "platform/widgets/TreeWidget.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/ControlItems.h"
#include "tools/drive/desktop/Controls.h"
#include "tools/drive/desktop/Keyboard.h"
#include "tools/drive/desktop/Pointer.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/Numbers.h"

/// What a person does with the controls of the active dialog.
namespace drive {

using namespace platform;

namespace {

/// The control that the act's first argument names, if it is a `Widget`; fails the act when it is not, or
/// does not take anything now.
template <class Widget>
Widget* controlFor(Act& act) {
    const CDialog* dialog = activeDialog();
    const std::optional<int> id = number<int>(act.word(0));
    QWidget* control = dialog && id ? dialogControl(dialog->GetSafeHwnd(), *id) : nullptr;
    auto* wanted = dynamic_cast<Widget*>(control);
    if (dialog == nullptr) {
        act.fail("no dialog is open");
    } else if (control == nullptr) {
        act.fail("the dialog has no control " + act.word(0));
    } else if (!control->isEnabled() || !control->isVisible()) {
        act.fail("control " + act.word(0) + " is hidden or disabled");
        return nullptr;
    } else if (wanted == nullptr) {
        act.fail("control " + act.word(0) + " cannot do that");
    }
    return wanted;
}

/// The item that an argument means; fails the act when there is none.
QModelIndex itemFor(Act& act, std::size_t argument, const QAbstractItemView& view) {
    if (const auto* list = dynamic_cast<const ListBoxView*>(&view)) {
        // What was added last may not have been shown yet.
        const_cast<ListBoxView*>(list)->entries().settle();
    }
    QModelIndex item = itemOf(view, act.word(argument));
    if (!item.isValid()) act.fail("there is no " + act.word(argument));
    return item;
}

bool isInView(const QAbstractItemView& view, const QModelIndex& item) {
    return view.viewport()->rect().contains(view.visualRect(item).center());
}

/// A point of the item on the screen; it must be in view.
CPoint pointOn(const QAbstractItemView& view, const QModelIndex& item) {
    const QRect shown = view.visualRect(item) & view.viewport()->rect();
    return fromQt(view.viewport()->mapToGlobal(shown.center()));
}

void clickAt(CPoint screen) {
    Pointer& pointer = Pointer::instance();
    pointer.moveTo(screen);
    pointer.press(Qt::LeftButton);
    pointer.release(Qt::LeftButton);
}

void set(Act& act, Program&) {
    auto* edit = controlFor<QLineEdit>(act);
    if (edit == nullptr) return;
    edit->setFocus(Qt::MouseFocusReason);
    edit->selectAll();
    if (act.word(1).empty()) strikeKey({Qt::Key_Delete, Qt::NoModifier}, 0);
    typeText(act.word(1));
}

void pickInCombo(Act& act, QComboBox& combo) {
    const int item = comboItemOf(combo, act.word(1));
    if (item < 0) return act.fail("there is no " + act.word(1));
    combo.setFocus(Qt::MouseFocusReason);
    combo.setCurrentIndex(item);
    QMetaObject::invokeMethod(
        &combo, [&combo, item] { emit combo.activated(item); }, Qt::QueuedConnection);
}

/// Clicks the item that the second argument means; whether there is one.
bool clickItem(Act& act) {
    auto* view = controlFor<QAbstractItemView>(act);
    if (view == nullptr) return false;
    const QModelIndex item = itemFor(act, 1, *view);
    if (!item.isValid()) return false;
    view->scrollTo(item);
    clickAt(pointOn(*view, item));
    return true;
}

void pick(Act& act, Program&) {
    const CDialog* dialog = activeDialog();
    const std::optional<int> id = number<int>(act.word(0));
    QWidget* control = dialog && id ? dialogControl(dialog->GetSafeHwnd(), *id) : nullptr;
    if (qobject_cast<QComboBox*>(control) == nullptr) {
        clickItem(act);
    } else if (auto* combo = controlFor<QComboBox>(act)) {
        pickInCombo(act, *combo);
    }
}

void activate(Act& act, Program&) {
    if (!clickItem(act)) return;
    Pointer::instance().pressAgain();
    Pointer::instance().release(Qt::LeftButton);
}

void expand(Act& act, Program&) {
    auto* tree = controlFor<TreeWidget>(act);
    if (tree == nullptr) return;
    const QModelIndex item = itemFor(act, 1, *tree);
    if (!item.isValid()) return;
    if (tree->model()->rowCount(item) == 0) return act.fail("nothing is below " + act.word(1));
    tree->expand(item);
}

/// Far enough that the press becomes a drag.
void beginDrag(CPoint from) {
    Pointer& pointer = Pointer::instance();
    pointer.moveTo(from);
    pointer.press(Qt::LeftButton);
    const int distance = QApplication::startDragDistance();
    pointer.moveTo(from + CPoint{distance / 2, 0});
    pointer.moveTo(from + CPoint{distance + 1, 0});
}

void drag(Act& act, Program&) {
    auto* tree = controlFor<TreeWidget>(act);
    if (tree == nullptr) return;
    const QModelIndex from = itemFor(act, 1, *tree);
    const QModelIndex to = itemFor(act, 2, *tree);
    if (!from.isValid() || !to.isValid()) return;
    tree->scrollTo(from);
    if (!isInView(*tree, to)) tree->scrollTo(to);
    if (!isInView(*tree, from)) return act.fail("the two items are too far apart");
    beginDrag(pointOn(*tree, from));
    Pointer::instance().moveTo(pointOn(*tree, to));
    Pointer::instance().release(Qt::LeftButton);
}

void press(Act& act, Program&) {
    auto* button = controlFor<QAbstractButton>(act);
    if (button == nullptr) return;
    button->setFocus(Qt::MouseFocusReason);
    button->click();
}

void header(Act& act, Program&) {
    const auto* list = controlFor<ReportView>(act);
    if (list == nullptr) return;
    const std::optional<int> column = number<int>(act.word(1));
    if (!column || *column < 0 || *column >= list->columnCount()) {
        return act.fail("there is no column " + act.word(1));
    }
    const QHeaderView& bar = *list->header();
    const int x = bar.sectionViewportPosition(*column) + bar.sectionSize(*column) / 2;
    clickAt(fromQt(bar.viewport()->mapToGlobal(QPoint(x, bar.height() / 2))));
}

constexpr Command kControlCommands[] = {
    {"set", 2, 2, set},   {"pick", 2, 2, pick},   {"activate", 2, 2, activate}, {"expand", 2, 2, expand},
    {"drag", 3, 3, drag}, {"press", 1, 1, press}, {"header", 2, 2, header},
};

}  // namespace

std::span<const Command> controlCommands() { return kControlCommands; }

}  // namespace drive
