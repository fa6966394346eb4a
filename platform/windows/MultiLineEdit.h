#pragma once

#include <QTextEdit>

namespace platform {

/// An edit of several lines without scroll bars, whose text wraps at its width, anywhere where a word is too
/// long for a line. What it shows and how many lines that is are the same whether it is on show or not.
class MultiLineEdit : public QTextEdit {
  public:
    explicit MultiLineEdit(QWidget& parent);

    void setContent(const QString& text);
    /// Lines as wrapped, at least 1.
    int lineCount();

  protected:
    bool event(QEvent* event) override;

  private:
    void wrapToWidth();
    void setLineHeights();
};

}  // namespace platform
