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

#include "tools/drive/desktop/Keyboard.h"
#include "tools/drive/desktop/Pointer.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/Request.h"

/// What a person does with the controls of the active dialog.
namespace drive {

using namespace platform;

namespace {

/// The control of the active dialog that the first argument names, null when there is none.
QWidget* findControl(const Request& request) {
    const CDialog* dialog = activeDialog();
    const std::optional<int> id = number<int>(request.argument(0));
    return dialog && id ? dialogControl(dialog->GetSafeHwnd(), *id) : nullptr;
}

/// The same control as a `Widget`. Null, and the request fails, when it is of another kind, hidden or
/// disabled.
template <class Widget>
Widget* controlFor(Request& request) {
    QWidget* control = findControl(request);
    auto* wanted = dynamic_cast<Widget*>(control);
    if (activeDialog() == nullptr) {
        request.fail("no dialog is open");
    } else if (control == nullptr) {
        request.fail("the dialog has no control " + request.argument(0));
    } else if (!control->isEnabled() || !control->isVisible()) {
        request.fail("control " + request.argument(0) + " is hidden or disabled");
        return nullptr;
    } else if (wanted == nullptr) {
        request.fail("control " + request.argument(0) + " cannot do that");
    }
    return wanted;
}

/// The item that an argument names. The request fails when there is none.
QModelIndex itemFor(Request& request, std::size_t argument, const QAbstractItemView& view) {
    if (const auto* list = dynamic_cast<const ListBoxView*>(&view)) {
        // The view may not know yet what was added last.
        const_cast<ListBoxView*>(list)->entries().settle();
    }
    QModelIndex item = itemOf(view, request.argument(argument));
    if (!item.isValid()) request.fail("there is no " + request.argument(argument));
    return item;
}

bool isInView(const QAbstractItemView& view, const QModelIndex& item) {
    return view.viewport()->rect().contains(view.visualRect(item).center());
}

/// A point on the screen that lies on the item, which must be in view.
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

void set(Request& request, Program&) {
    auto* edit = controlFor<QLineEdit>(request);
    if (edit == nullptr) return;
    edit->setFocus(Qt::MouseFocusReason);
    edit->selectAll();
    if (request.argument(1).empty()) strikeKey({Qt::Key_Delete, Qt::NoModifier}, 0);
    typeText(request.argument(1));
}

void pickInCombo(Request& request, QComboBox& combo) {
    const int item = comboItemOf(combo, request.argument(1));
    if (item < 0) return request.fail("there is no " + request.argument(1));
    combo.setFocus(Qt::MouseFocusReason);
    combo.setCurrentIndex(item);
    QMetaObject::invokeMethod(&combo, [&combo, item] { emit combo.activated(item); }, Qt::QueuedConnection);
}

/// Clicks the item that the second argument names; false when there is none.
bool clickItem(Request& request) {
    auto* view = controlFor<QAbstractItemView>(request);
    if (view == nullptr) return false;
    const QModelIndex item = itemFor(request, 1, *view);
    if (!item.isValid()) return false;
    view->scrollTo(item);
    clickAt(pointOn(*view, item));
    return true;
}

void pick(Request& request, Program&) {
    if (qobject_cast<QComboBox*>(findControl(request)) == nullptr) {
        clickItem(request);
    } else if (auto* combo = controlFor<QComboBox>(request)) {
        pickInCombo(request, *combo);
    }
}

void activate(Request& request, Program&) {
    if (!clickItem(request)) return;
    Pointer::instance().pressAgain();
    Pointer::instance().release(Qt::LeftButton);
}

void expand(Request& request, Program&) {
    auto* tree = controlFor<TreeWidget>(request);
    if (tree == nullptr) return;
    const QModelIndex item = itemFor(request, 1, *tree);
    if (!item.isValid()) return;
    if (tree->model()->rowCount(item) == 0) return request.fail("nothing is below " + request.argument(1));
    tree->expand(item);
}

/// Presses and moves far enough for a drag to begin.
void beginDrag(CPoint from) {
    Pointer& pointer = Pointer::instance();
    pointer.moveTo(from);
    pointer.press(Qt::LeftButton);
    const int distance = QApplication::startDragDistance();
    pointer.moveTo(from + CPoint{distance / 2, 0});
    pointer.moveTo(from + CPoint{distance + 1, 0});
}

void drag(Request& request, Program&) {
    auto* tree = controlFor<TreeWidget>(request);
    if (tree == nullptr) return;
    const QModelIndex from = itemFor(request, 1, *tree);
    const QModelIndex to = itemFor(request, 2, *tree);
    if (!from.isValid() || !to.isValid()) return;
    tree->scrollTo(from);
    if (!isInView(*tree, to)) tree->scrollTo(to);
    if (!isInView(*tree, from)) return request.fail("the two items are too far apart");
    beginDrag(pointOn(*tree, from));
    Pointer::instance().moveTo(pointOn(*tree, to));
    Pointer::instance().release(Qt::LeftButton);
}

void press(Request& request, Program&) {
    auto* button = controlFor<QAbstractButton>(request);
    if (button == nullptr) return;
    button->setFocus(Qt::MouseFocusReason);
    button->click();
}

void header(Request& request, Program&) {
    const auto* list = controlFor<ReportView>(request);
    if (list == nullptr) return;
    const std::optional<int> column = number<int>(request.argument(1));
    if (!column || *column < 0 || *column >= list->columnCount()) {
        return request.fail("there is no column " + request.argument(1));
    }
    const QHeaderView& bar = *list->header();
    const int x = bar.sectionViewportPosition(*column) + bar.sectionSize(*column) / 2;
    clickAt(fromQt(bar.viewport()->mapToGlobal(QPoint(x, bar.height() / 2))));
}

constexpr Command controlTable[] = {
    {"set", 2, 2, set},   {"pick", 2, 2, pick},   {"activate", 2, 2, activate}, {"expand", 2, 2, expand},
    {"drag", 3, 3, drag}, {"press", 1, 1, press}, {"header", 2, 2, header},
};

}  // namespace

std::span<const Command> controlCommands() { return controlTable; }

}  // namespace drive
