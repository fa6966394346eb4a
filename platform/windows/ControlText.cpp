#include "platform/windows/ControlText.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "platform/qt/QtConvert.h"

namespace platform {

namespace {

QString textOf(const QWidget& control) {
    if (const auto* const holder = dynamic_cast<const TextHolder*>(&control)) return holder->content();
    if (const auto* const edit = qobject_cast<const QLineEdit*>(&control)) return edit->text();
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) return label->text();
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
    return control.windowTitle();
}

}  // namespace

std::string controlText(const QWidget& control) { return fromQt(textOf(control)); }

void setControlText(QWidget& control, std::string_view text) {
    const QString shown = toQt(text);
    if (auto* const holder = dynamic_cast<TextHolder*>(&control)) {
        holder->setContent(shown);
    } else if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        button->setText(shown);
    } else if (auto* const label = qobject_cast<QLabel*>(&control)) {
        label->setText(shown);
    } else {
        control.setWindowTitle(shown);
    }
}

}  // namespace platform
