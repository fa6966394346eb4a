#pragma once

#include <QTextEdit>

#include "platform/windows/ControlText.h"

namespace platform {

/// An edit of several lines, without a scroll bar unless asked for, whose text wraps at its width, anywhere
/// where a word is too long for a line. What it shows and how many lines that is are the same whether it is
/// on show or not.
class MultiLineEdit : public QTextEdit, public TextHolder {
  public:
    explicit MultiLineEdit(QWidget& parent);

    void setContent(const QString& text) override;
    /// With CR LF at the ends of lines.
    QString content() const override;
    /// Lines as wrapped, at least 1.
    int lineCount();
    /// For a text that is taller than the edit. The text wraps beside the bar.
    void showScrollBar(bool show);

  protected:
    bool event(QEvent* event) override;

  private:
    void wrapToWidth();
    void setLineHeights();
};

}  // namespace platform
