#pragma once

#include <QLineEdit>

#include "platform/windows/ControlMessages.h"

namespace platform {

/// An edit of one line.
class LineEdit : public QLineEdit {
  public:
    LineEdit(DWORD style, QWidget& parent);

    /// Sets the text, however long.
    void setContent(const QString& text);
    /// Typing makes the text no longer than this; a longer one that the program sets is shown whole.
    void limitText(int length);

  private:
    void keepLimit();
    void keepWidth();

    int limit_;
    QString lastText_;
};

}  // namespace platform
