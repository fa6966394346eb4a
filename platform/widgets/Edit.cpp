#include "platform/widgets/Edit.h"

#include <QPalette>
#include <cstdlib>

#include "platform/drawing/ProgramFont.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/widgets/ControlFactory.h"
#include "platform/widgets/LineEdit.h"
#include "platform/widgets/MultiLineEdit.h"
#include "platform/windows/ControlLink.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

QWidget* widgetOf(const CEdit& edit) { return WindowTable::instance().widget(edit.GetSafeHwnd()); }

LineEdit* lineOf(const CEdit& edit) { return dynamic_cast<LineEdit*>(widgetOf(edit)); }

MultiLineEdit* linesOf(const CEdit& edit) { return dynamic_cast<MultiLineEdit*>(widgetOf(edit)); }

}  // namespace

bool CEdit::Create(DWORD style, const CRect& rect, CWnd& parent, UINT id) {
    WindowWidget* const around = WindowWidget::of(parent);
    if (Bound() || !around) return false;
    makeEdit(style, *around, static_cast<int>(id), std::string(GetRuntimeClass().name)).bind(*this);
    MoveWindow(rect);
    ShowWindow(style & WS_VISIBLE ? SW_SHOW : SW_HIDE);
    return true;
}

void CEdit::SetFont(const LOGFONT& font) {
    QFont installed = programFont(std::abs(font.height));
    installed.setWeight(static_cast<QFont::Weight>(font.weight));
    if (QWidget* const widget = widgetOf(*this)) widget->setFont(installed);
}

void CEdit::SetColors(COLORREF text, COLORREF background) {
    QWidget* const widget = widgetOf(*this);
    if (!widget) return;
    QPalette colours = widget->palette();
    for (const auto role : {QPalette::Text, QPalette::WindowText}) colours.setColor(role, toQt(text));
    for (const auto role : {QPalette::Base, QPalette::Window}) colours.setColor(role, toQt(background));
    widget->setPalette(colours);
}

void CEdit::SetReadOnly() {
    if (MultiLineEdit* const edit = linesOf(*this)) edit->setTextInteractionFlags(Qt::NoTextInteraction);
}

void CEdit::HideCaret() {
    if (MultiLineEdit* const edit = linesOf(*this)) edit->setCursorWidth(0);
}

void CEdit::SetSel(int start, int end) {
    LineEdit* const edit = lineOf(*this);
    if (!edit) return;
    const int last = end < 0 ? static_cast<int>(edit->text().size()) : end;
    edit->setSelection(start, last - start);
    if (last == start) edit->setCursorPosition(start);
}

void CEdit::LimitText(int length) {
    if (LineEdit* const edit = lineOf(*this)) edit->limitText(length);
}

void CEdit::ShowScrollBar(bool show) {
    if (MultiLineEdit* const edit = linesOf(*this)) edit->showScrollBar(show);
}

int CEdit::GetLineCount() const {
    MultiLineEdit* const edit = linesOf(*this);
    return edit ? edit->lineCount() : 1;
}

}  // namespace platform
