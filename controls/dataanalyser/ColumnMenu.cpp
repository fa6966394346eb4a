#include "controls/dataanalyser/ColumnMenu.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

ColumnMenu::ColumnMenu(Analyser& analyser, QWidget* parent) : QMenu(parent), analyser_(analyser) {
    setObjectName(QStringLiteral("columns"));
    connect(this, &QMenu::aboutToShow, this, [this] { fill(); });
}

void ColumnMenu::fill() {
    clear();
    for (std::size_t column = 0; column < analyser_.dataSet().columns.size(); ++column) addColumn(column);
    addSeparator();
    connect(addAction(QStringLiteral("Όλες οι στήλες")), &QAction::triggered, this, [this] {
        analyser_.setLayout(ColumnLayout(analyser_.dataSet().columns.size()));
        refreshTicks();
    });
    refreshTicks();
}

void ColumnMenu::addColumn(std::size_t column) {
    QAction* action = addAction(toQt(heading(analyser_.dataSet().columns[column], analyser_.unit())));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, column](bool shown) {
        ColumnLayout next = analyser_.layout();
        next.setShown(column, shown);
        analyser_.setLayout(next);
        refreshTicks();
    });
}

void ColumnMenu::refreshTicks() {
    const ColumnLayout layout = analyser_.layout();
    for (std::size_t column = 0; column < layout.count(); ++column)
        actions()[static_cast<qsizetype>(column)]->setChecked(layout.shown(column));
}

void ColumnMenu::mouseReleaseEvent(QMouseEvent* event) {
    QAction* action = actionAt(event->position().toPoint());
    if (!action || action->isSeparator()) return QMenu::mouseReleaseEvent(event);
    action->trigger();
}

void ColumnMenu::keyPressEvent(QKeyEvent* event) {
    const bool chooses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return;
    if (!chooses || !activeAction()) return QMenu::keyPressEvent(event);
    activeAction()->trigger();
}

}  // namespace controls::dataanalyser
