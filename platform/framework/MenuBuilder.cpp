#include "platform/framework/MenuBuilder.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "platform/base/Resources.h"
#include "platform/drawing/LightPalette.h"
#include "platform/framework/FrameWnd.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

constexpr const char* barStyle =
    "QMenuBar { background: #F4F7F9; color: #1c2733; border: none; border-bottom: 1px solid #D8E0E6;"
    " font: 13px 'Liberation Sans'; }"
    "QMenuBar::item { background: transparent; padding: 3px 9px 4px; }"
    "QMenuBar::item:selected, QMenuBar::item:pressed { background: #D3E5F0; color: #1c2733; }";

constexpr const char* menuStyle =
    "QMenu { background: #FFFFFF; color: #1c2733; border: 1px solid #B4C0CA; padding: 3px 0;"
    " font: 13px 'Liberation Sans'; }"
    "QMenu::item { padding: 4px 28px 4px 28px; }"
    "QMenu::item:selected { background: #D3E5F0; color: #1c2733; }"
    "QMenu::item:disabled { background: transparent; color: #8A97A3; }"
    "QMenu::separator { height: 1px; background: #D8E0E6; margin: 3px 8px; }";

void refresh(const std::vector<QAction*>& actions, const std::vector<MenuItemState>& states) {
    for (std::size_t i = 0; i < actions.size() && i < states.size(); ++i) {
        actions[i]->setEnabled(states[i].enabled);
        actions[i]->setCheckable(states[i].checked);
        actions[i]->setChecked(states[i].checked);
    }
}

/// The keys of a command as menus show them, empty when it has none. The table has the usual ones first.
QString keysOf(UINT command) {
    const auto accelerators = Resources().accelerators;
    const auto first = std::ranges::find(accelerators, command, &Accelerator::id);
    if (first == accelerators.end()) return {};
    QString keys = toQt(first->keys);
    keys.replace(QLatin1StringView("Left"), QStringLiteral("←"));
    keys.replace(QLatin1StringView("Right"), QStringLiteral("→"));
    return keys;
}

QAction* addItem(QMenu& menu, const MenuItem& item, HWND frame) {
    if (item.text.empty()) return menu.addSeparator();
    // What follows the tabulator stands in a column of its own.
    const QString keys = keysOf(item.id);
    QAction* const action = menu.addAction(keys.isEmpty() ? toQt(item.text) : toQt(item.text) + '\t' + keys);
    QObject::connect(action, &QAction::triggered, &menu,
                     [frame, id = item.id] { WindowTable::instance().send(frame, WM_COMMAND, id); });
    return action;
}

void addMenu(QMenuBar& bar, std::size_t index, HWND frame) {
    const Menu& source = Resources().menu[index];
    QMenu& menu = *bar.addMenu(toQt(source.text));
    menu.setPalette(lightPalette());
    menu.setStyleSheet(menuStyle);
    std::vector<QAction*> actions;
    for (const MenuItem& item : source.items) actions.push_back(addItem(menu, item, frame));
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [frame, index, actions] {
        auto* const window = dynamic_cast<CFrameWnd*>(CWnd::FromHandle(frame));
        if (window) refresh(actions, window->MenuState(index));
    });
}

}  // namespace

void buildMenuBar(QMenuBar& bar, HWND frame) {
    bar.setNativeMenuBar(false);
    bar.setPalette(lightPalette());
    bar.setStyleSheet(barStyle);
    for (std::size_t i = 0; i < Resources().menu.size(); ++i) addMenu(bar, i, frame);
}

}  // namespace platform
