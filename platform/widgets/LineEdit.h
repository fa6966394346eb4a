#pragma once

#include <QLineEdit>

#include "platform/base/ControlMessages.h"
#include "platform/windows/ControlText.h"

namespace platform {

/// An edit with one line.
class LineEdit : public QLineEdit, public TextHolder {
  public:
    LineEdit(DWORD style, QWidget& parent);

    /// Sets the text, however long.
    void setContent(const QString& text) override;
    QString content() const override { return text(); }
    /// Limits the length of a text that is typed. A longer text that the program sets is shown whole.
    void limitText(int length);

  private:
    void keepLimit();
    void keepWidth();

    int limit_;
    QString lastText_;
};

}  // namespace platform
