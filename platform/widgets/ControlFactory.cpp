#include "platform/widgets/ControlFactory.h"

#include <QComboBox>
#include <utility>

#include "platform/qt/QtChild.h"
#include "platform/widgets/LineEdit.h"
#include "platform/widgets/ListBoxView.h"
#include "platform/widgets/MultiLineEdit.h"
#include "platform/widgets/OwnerDrawButton.h"
#include "platform/widgets/ReportView.h"
#include "platform/widgets/TreeWidget.h"
#include "platform/windows/ControlLink.h"

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
