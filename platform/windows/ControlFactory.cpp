#include "platform/windows/ControlFactory.h"

#include <QComboBox>
#include <utility>

#include "platform/automation/QtChild.h"
#include "platform/windows/ControlLink.h"
#include "platform/windows/LineEdit.h"
#include "platform/windows/ListBoxView.h"
#include "platform/windows/MultiLineEdit.h"
#include "platform/windows/OwnerDrawButton.h"
#include "platform/windows/ReportView.h"
#include "platform/windows/TreeWidget.h"

namespace platform {

ControlLink& makeEdit(DWORD style, QWidget& parent, int id, std::string className) {
    if (style & ES_MULTILINE) {
        return ControlLink::enter(makeQtChild<MultiLineEdit>(parent), std::move(className), id);
    }
    return ControlLink::enter(makeQtChild<LineEdit>(style, parent), std::move(className), id);
}

ControlLink& makeListBox(DWORD style, QWidget& parent, int id) {
    return ControlLink::enter(makeQtChild<ListBoxView>(style, parent), "ListBox", id);
}

ControlLink& makeListView(DWORD style, QWidget& parent, int id) {
    return ControlLink::enter(makeQtChild<ReportView>(style, parent), "ListView", id);
}

ControlLink& makeTreeView(QWidget& parent, int id) {
    return ControlLink::enter(makeQtChild<TreeWidget>(parent), "TreeView", id);
}

ControlLink& makeComboBox(QWidget& parent, int id) {
    auto& box = makeQtChild<QComboBox>(&parent);
    QObject::connect(&box, &QComboBox::activated, &box, [&box] { sendCommand(box, CBN_SELCHANGE); });
    return ControlLink::enter(box, "ComboBox", id);
}

ControlLink& makeOwnerDrawButton(QWidget& parent, int id) {
    return ControlLink::enter(*new OwnerDrawButton(parent), "Button", id);
}

}  // namespace platform
