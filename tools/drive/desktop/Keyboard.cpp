#include "tools/drive/desktop/Keyboard.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWindow>

#include "tools/drive/desktop/Windows.h"

namespace drive {

namespace {

/// What a key adds to a text, as keyboards tell it.
QString textOf(const KeyStroke& stroke) {
    switch (stroke.key) {
        case Qt::Key_Return:
            return QStringLiteral("\r");
        case Qt::Key_Tab:
            return QStringLiteral("\t");
        case Qt::Key_Backspace:
            return QStringLiteral("\b");
        case Qt::Key_Escape:
            return QStringLiteral("\x1b");
        case Qt::Key_Delete:
            return QStringLiteral("\x7f");
        default:
            break;
    }
    const bool prints = stroke.key >= Qt::Key_Space && stroke.key <= Qt::Key_AsciiTilde &&
                        !(stroke.modifiers & (Qt::ControlModifier | Qt::AltModifier));
    if (!prints) return {};
    const QChar capital(static_cast<char16_t>(stroke.key));
    return stroke.modifiers & Qt::ShiftModifier ? capital : capital.toLower();
}

void sendToFocus(QEvent::Type type, const KeyStroke& stroke, const QString& text) {
    QWindow* target = QGuiApplication::focusWindow();
    if (target == nullptr) return;
    // As window systems do it: a press is a shortcut first, if it is one.
    const bool shortcut = type == QEvent::KeyPress &&
                          qt_sendShortcutOverrideEvent(target, 0, stroke.key, stroke.modifiers, text);
    if (!shortcut) qt_handleKeyEvent(target, type, stroke.key, stroke.modifiers, text);
}

/// Press and release are events of their own. So a key that opens a dialog is released in that dialog.
void strike(KeyStroke stroke, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QMetaObject::invokeMethod(qApp, [=] { sendToFocus(type, stroke, text); }, Qt::QueuedConnection);
    }
}

void strikeIn(const QPointer<QWidget>& widget, KeyStroke stroke) {
    for (const auto action : {QTest::Press, QTest::Release}) {
        const auto send = [=] {
            if (widget) QTest::sendKeyEvent(action, widget, stroke.key, textOf(stroke), stroke.modifiers);
        };
        QMetaObject::invokeMethod(qApp, send, Qt::QueuedConnection);
    }
}

}  // namespace

void strikeKey(KeyStroke stroke, platform::HWND window) {
    if (window == 0) {
        strike(stroke, textOf(stroke));
    } else {
        strikeIn(&widgetOf(window), stroke);
    }
}

void typeText(std::string_view text) {
    for (const QChar c : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) {
        // A key's number is the code of its capital letter.
        const auto key = static_cast<Qt::Key>(c.toUpper().unicode());
        strike({key, c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier}, c);
    }
}

}  // namespace drive
