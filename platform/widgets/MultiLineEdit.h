#pragma once

#include <QTextEdit>

#include "platform/windows/ControlText.h"

namespace platform {

/// An edit with several lines, at first without a scroll bar. Its text wraps at its width, and a word that is
/// too long for a line is broken. It has the same content and number of lines whether it is visible or not.
class MultiLineEdit : public QTextEdit, public TextHolder {
  public:
    explicit MultiLineEdit(QWidget& parent);

    void setContent(const QString& text) override;
    /// The text, its lines ended by CR LF.
    QString content() const override;
    /// The number of lines after wrapping, at least 1.
    int lineCount();
    /// Shows or hides the scroll bar. The text wraps to the left of the bar.
    void showScrollBar(bool show);

  protected:
    bool event(QEvent* event) override;

  private:
    void wrapToWidth();
    void setLineHeights();
};

}  // namespace platform
