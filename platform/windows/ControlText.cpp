#include "platform/windows/ControlText.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "platform/windows/LineEdit.h"
#include "platform/windows/MultiLineEdit.h"
#include "platform/windows/QtConvert.h"

namespace platform {

namespace {

QString textOf(const QWidget& control) {
    if (const auto* const edit = qobject_cast<const QLineEdit*>(&control)) return edit->text();
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) return label->text();
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
    if (const auto* const edit = dynamic_cast<const MultiLineEdit*>(&control)) {
        return edit->toPlainText().replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    }
    return control.windowTitle();
}

}  // namespace

std::string controlText(const QWidget& control) { return fromQt(textOf(control)); }

void setControlText(QWidget& control, std::string_view text) {
    const QString shown = toQt(text);
    if (auto* const edit = dynamic_cast<LineEdit*>(&control)) {
        edit->setContent(shown);
    } else if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        button->setText(shown);
    } else if (auto* const label = qobject_cast<QLabel*>(&control)) {
        label->setText(shown);
    } else if (auto* const multi = dynamic_cast<MultiLineEdit*>(&control)) {
        multi->setContent(shown);
    } else {
        control.setWindowTitle(shown);
    }
}

}  // namespace platform
