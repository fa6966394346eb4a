#include "platform/dialogs/DialogControls.h"

#include <QCheckBox>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>

#include "platform/drawing/Artwork.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/widgets/ControlFactory.h"
#include "platform/windows/ControlLink.h"

namespace platform {

namespace {

WindowTable& table() { return WindowTable::instance(); }

QWidget& entered(ControlLink& link) { return *table().widget(link.handle()); }

void sendClicks(QAbstractButton& button) {
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [&button] { sendCommand(button, BN_CLICKED); });
}

QWidget& makeButton(const DialogControl& control, QWidget& dialog) {
    auto& button = makeQtChild<QPushButton>(toQt(control.text), &dialog);
    // Enter pushes the button with the focus.
    button.setAutoDefault(true);
    button.setDefault(control.kind == DialogControlKind::defaultPushButton);
    sendClicks(button);
    return entered(ControlLink::enter(button, "Button", control.id));
}

/// Draws check boxes small enough for the height of a line of text; templates give them no more.
class SmallIndicator : public QProxyStyle {
  public:
    explicit SmallIndicator(QWidget& box) { setParent(&box); }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        constexpr int side = 12;
        const bool isIndicator = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
        return isIndicator ? side : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

QWidget& makeCheckBox(const DialogControl& control, QWidget& dialog) {
    auto& box = makeQtChild<QCheckBox>(toQt(control.text), &dialog);
    box.setStyle(&makeQtChild<SmallIndicator>(box));
    if (control.style & BS_LEFTTEXT) box.setLayoutDirection(Qt::RightToLeft);
    sendClicks(box);
    return entered(ControlLink::enter(box, "Button", control.id));
}

QWidget& makeLabel(const DialogControl& control, QWidget& dialog) {
    auto& label = makeQtChild<QLabel>(&dialog);
    // A click on a label is a click on the dialog.
    label.setAttribute(Qt::WA_TransparentForMouseEvents);
    if (control.kind == DialogControlKind::bitmap) {
        label.setPixmap(QPixmap::fromImage(artworkImage(QStringLiteral(":/bitmap/%1").arg(control.bitmap))));
    } else {
        label.setTextFormat(Qt::PlainText);
        label.setText(toQt(control.text));
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label.setWordWrap(true);
    }
    return entered(ControlLink::enter(label, "Static", control.id));
}

QWidget& makeControl(const DialogControl& control, QWidget& dialog) {
    switch (control.kind) {
        case DialogControlKind::edit:
            return entered(makeEdit(control.style, dialog, control.id));
        case DialogControlKind::checkBox:
            return makeCheckBox(control, dialog);
        case DialogControlKind::listBox:
            return entered(makeListBox(control.style, dialog, control.id));
        case DialogControlKind::comboBox:
            return entered(makeComboBox(dialog, control.id));
        case DialogControlKind::listView:
            return entered(makeListView(control.style, dialog, control.id));
        case DialogControlKind::treeView:
            return entered(makeTreeView(dialog, control.id));
        case DialogControlKind::pushButton:
        case DialogControlKind::defaultPushButton:
            return makeButton(control, dialog);
        case DialogControlKind::staticText:
        case DialogControlKind::bitmap:
            break;
    }
    return makeLabel(control, dialog);
}

/// Whether the control shows no text that says what it is for.
bool needsName(DialogControlKind kind) {
    using enum DialogControlKind;
    return kind == edit || kind == listBox || kind == comboBox || kind == listView || kind == treeView;
}

void prepare(const DialogControl& control, QWidget& widget) {
    QRect place = toQt(dialogPixels(control.rect));
    if (control.kind == DialogControlKind::bitmap) place.setSize(widget.sizeHint());
    // A closed drop-down list is as high as one line. The height in the template includes the open list.
    if (control.kind == DialogControlKind::comboBox) place.setHeight(widget.sizeHint().height());
    widget.setGeometry(place);
    widget.setVisible(control.style & WS_VISIBLE);
    widget.setEnabled(!(control.style & WS_DISABLED));
    const bool takesFocus = widget.focusPolicy() != Qt::NoFocus;
    if (takesFocus && !(control.style & WS_TABSTOP)) widget.setFocusPolicy(Qt::ClickFocus);
}

}  // namespace

void createControls(std::span<const DialogControl> controls, QWidget& dialog) {
    std::string_view label;
    for (const DialogControl& control : controls) {
        QWidget& widget = makeControl(control, dialog);
        prepare(control, widget);
        if (control.kind == DialogControlKind::staticText) label = control.text;
        if (needsName(control.kind)) {
            widget.setAccessibleName(toQt(control.text.empty() ? label : control.text));
        }
    }
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
