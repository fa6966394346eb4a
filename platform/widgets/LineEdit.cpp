#include "platform/widgets/LineEdit.h"

#include <QValidator>
#include <algorithm>

#include "platform/qt/QtChild.h"
#include "platform/qt/QtConvert.h"
#include "platform/windows/ControlLink.h"

namespace platform {

namespace {

/// The limit of an edit that is given no other.
constexpr int defaultLimit = 30000;

/// Changes entered text to lower case.
class LowerCase : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        input = toQt(toLower(fromQt(input)));
        return Acceptable;
    }
};

}  // namespace

LineEdit::LineEdit(DWORD style, QWidget& parent) : QLineEdit(&parent), limit_(defaultLimit) {
    keepLimit();
    if (style & ES_LOWERCASE) setValidator(&makeQtChild<LowerCase>(this));
    if (!(style & ES_AUTOHSCROLL)) connect(this, &QLineEdit::textEdited, this, &LineEdit::keepWidth);
    connect(this, &QLineEdit::textChanged, this, [this] {
        keepLimit();
        lastText_ = text();
        sendCommand(*this, EN_UPDATE);
        sendCommand(*this, EN_CHANGE);
    });
}

void LineEdit::setContent(const QString& text) {
    setMaxLength(std::max(limit_, static_cast<int>(text.size())));
    setText(text);
}

void LineEdit::limitText(int length) {
    limit_ = length;
    keepLimit();
}

void LineEdit::keepLimit() { setMaxLength(std::max(limit_, static_cast<int>(text().size()))); }

void LineEdit::keepWidth() {
    constexpr int margins = 8;
    const bool grown = text().size() > lastText_.size();
    if (!grown || fontMetrics().horizontalAdvance(text()) <= width() - margins) return;
    const int caret = std::max(0, cursorPosition() - static_cast<int>(text().size() - lastText_.size()));
    setText(lastText_);
    setCursorPosition(caret);
}

}  // namespace platform
