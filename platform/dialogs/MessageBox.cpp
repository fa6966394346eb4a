#include "platform/dialogs/MessageBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <cstdio>
#include <memory>
#include <vector>

#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/OwnerWindow.h"
#include "platform/drawing/LightPalette.h"
#include "platform/machine/Machine.h"
#include "platform/qt/QtConvert.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// How many UnattendedBoxes exist.
int unattended = 0;

std::vector<BoxAnswer> buttonsOf(BoxButtons buttons) {
    if (buttons == BoxButtons::yesNo) return {BoxAnswer::yes, BoxAnswer::no};
    return {BoxAnswer::ok};
}

QString buttonText(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::yes:
            return QStringLiteral("Ναι");
        case BoxAnswer::no:
            return QStringLiteral("Όχι");
        case BoxAnswer::cancel:
            return QStringLiteral("Άκυρο");
        default:
            return QStringLiteral("ΟΚ");
    }
}

/// Shows the box and waits for the user. Closing it without a button counts as its last button.
BoxAnswer show(std::string_view text, std::string_view caption, const std::vector<BoxAnswer>& buttons,
               BoxIcon icon) {
    // On the heap: the owner window may destroy the box while it is shown.
    auto box = std::make_unique<QMessageBox>(ownerWindow());
    const QPointer<QMessageBox> alive = box.get();
    stayInFrontOf(*box, box->parentWidget());
    box->setPalette(lightPalette());
    box->setWindowTitle(toQt(caption));
    if (icon == BoxIcon::question) box->setIcon(QMessageBox::Question);
    box->setTextFormat(Qt::PlainText);
    box->setText(toQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    std::vector<QAbstractButton*> widgets;
    widgets.reserve(buttons.size());
    for (const BoxAnswer answer : buttons) {
        widgets.push_back(box->addButton(buttonText(answer), QMessageBox::AcceptRole));
    }
    box->setDefaultButton(static_cast<QPushButton*>(widgets.front()));
    box->setEscapeButton(widgets.back());
    box->exec();
    if (!alive) {
        (void)box.release();
        return buttons.back();
    }
    BoxAnswer answer = buttons.back();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (widgets[i] == box->clickedButton()) answer = buttons[i];
    }
    return answer;
}

BoxAnswer tellOnStandardError(std::string_view text, const std::vector<BoxAnswer>& buttons) {
    std::fprintf(stderr, "%s\n", toUtf8(text).c_str());
    return buttons.back();
}

}  // namespace

UnattendedBoxes::UnattendedBoxes() {
    ++unattended;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const box = qobject_cast<QMessageBox*>(window)) box->reject();
    }
}

UnattendedBoxes::~UnattendedBoxes() { --unattended; }

BoxAnswer AfxMessageBox(std::string_view text, BoxButtons kind) {
    return MessageBox(text, LoadString(AFX_IDS_APP_TITLE), kind);
}

BoxAnswer MessageBox(std::string_view text, std::string_view caption, BoxButtons kind, BoxIcon icon) {
    const std::vector<BoxAnswer> buttons = buttonsOf(kind);
    const auto ready = hasMachine() ? machine().nextAnswer(buttons) : std::nullopt;
    const BoxAnswer answer = ready            ? *ready
                             : unattended > 0 ? tellOnStandardError(text, buttons)
                                              : show(text, caption, buttons, icon);
    if (hasMachine())
        machine().trace().record(TraceBox{std::string(text), std::string(caption), buttons, answer});
    return answer;
}

}  // namespace platform
