#include "controls/dataanalyser/look/Buttons.h"

#include <QButtonGroup>
#include <QHBoxLayout>

namespace controls::dataanalyser {

// Qt parents own what is made here.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

QPushButton* makeButton(const QString& text, const QString& name, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

QPushButton* makeToggle(const QString& text, const QString& name, QWidget* parent) {
    QPushButton* button = makeButton(text, name, parent);
    button->setCheckable(true);
    return button;
}

void addChoice(QButtonGroup& group, int id, const QString& text, const QString& name, QWidget* parent) {
    QPushButton* button = makeToggle(text, name, parent);
    // Screen readers then call it a radio button.
    button->setAutoExclusive(true);
    group.addButton(button, id);
}

void choose(const QButtonGroup& group, int id) {
    for (QAbstractButton* button : group.buttons()) {
        const bool chosen = group.id(button) == id;
        if (chosen) button->setChecked(true);
        button->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

QWidget* joinedButtons(const QButtonGroup& group, QWidget* parent) {
    auto* joined = new QWidget(parent);
    auto* row = new QHBoxLayout(joined);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (QAbstractButton* button : group.buttons()) row->addWidget(button);
    return joined;
}

// NOLINTEND(cppcoreguidelines-owning-memory)

}  // namespace controls::dataanalyser
