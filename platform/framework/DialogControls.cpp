#include "platform/framework/DialogControls.h"

#include <QLabel>
#include <QPushButton>

#include "platform/handles/WindowTable.h"
#include "platform/windows/QtConvert.h"

namespace platform {

namespace {

WindowTable& table() { return WindowTable::instance(); }

QPushButton* makeButton(const DialogControl& control, QWidget& dialog) {
    auto* const button = new QPushButton(toQt(control.text), &dialog);
    // Enter pushes the button with the focus.
    button->setAutoDefault(true);
    button->setDefault(control.kind == DialogControlKind::defaultPushButton);
    QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, button] {
        const HWND handle = table().handleOf(button);
        const auto id = static_cast<WPARAM>(table().find(handle)->id);
        table().send(table().handleOf(&dialog), WM_COMMAND, id & 0xFFFFU, handle);
    });
    return button;
}

QLabel* makeLabel(const DialogControl& control, QWidget& dialog) {
    auto* const label = new QLabel(&dialog);
    // A click on it is one on the dialog.
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    if (control.kind == DialogControlKind::bitmap) {
        label->setPixmap(QPixmap(QStringLiteral(":/bitmap/%1.png").arg(control.bitmap), "PNG"));
        return label;
    }
    label->setTextFormat(Qt::PlainText);
    label->setText(toQt(control.text));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(true);
    return label;
}

bool isButton(DialogControlKind kind) {
    return kind == DialogControlKind::pushButton || kind == DialogControlKind::defaultPushButton;
}

}  // namespace

void createControl(const DialogControl& control, QWidget& dialog) {
    const bool button = isButton(control.kind);
    QWidget* const widget = button ? static_cast<QWidget*>(makeButton(control, dialog))
                                   : static_cast<QWidget*>(makeLabel(control, dialog));
    QRect place = toQt(dialogPixels(control.rect));
    if (control.kind == DialogControlKind::bitmap) place.setSize(widget->sizeHint());
    widget->setGeometry(place);
    table().add({.widget = widget, .className = button ? "Button" : "Static", .id = control.id, .proc = {}});
}

std::vector<HWND> dialogControls(HWND dialog) {
    std::vector<HWND> controls;
    for (const HWND window : table().all()) {
        const QWidget* const widget = table().widget(window);
        const bool inside = !widget->isWindow() && table().nearestHandle(widget->parentWidget()) == dialog;
        if (inside) controls.push_back(window);
    }
    return controls;
}

QWidget* dialogControl(HWND dialog, int id) {
    for (const HWND control : dialogControls(dialog)) {
        if (table().find(control)->id == id) return table().widget(control);
    }
    return nullptr;
}

std::string controlText(const QWidget& control) {
    if (const auto* const button = qobject_cast<const QPushButton*>(&control)) return fromQt(button->text());
    const auto* const label = qobject_cast<const QLabel*>(&control);
    return label ? fromQt(label->text()) : std::string();
}

void setControlText(QWidget& control, std::string_view text) {
    if (auto* const button = qobject_cast<QPushButton*>(&control)) button->setText(toQt(text));
    if (auto* const label = qobject_cast<QLabel*>(&control)) label->setText(toQt(text));
}

void pushDefaultButton(HWND dialog) {
    for (const HWND control : dialogControls(dialog)) {
        auto* const button = qobject_cast<QPushButton*>(table().widget(control));
        if (!button || !button->isDefault()) continue;
        button->click();
        return;
    }
    table().send(dialog, WM_COMMAND, IDOK);
}

}  // namespace platform
