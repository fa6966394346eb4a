#pragma once

#include <QLineEdit>

#include "platform/base/Messages.h"

class QAction;

namespace controls::select {

/// The text field that narrows the list.
class FilterField : public QLineEdit {
    Q_OBJECT

  public:
    explicit FilterField(QWidget* parent);

    /// Carries out the messages for cut, copy and paste and ignores all others. The result is always 0.
    platform::LRESULT receive(platform::UINT message);

    /// Takes the focus and appends a text, as if it had been typed here.
    void takeTyping(const QString& text);

  signals:
    /// Emitted when a key is pressed that leads into the list.
    void leftAtBottom();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void nameButtons();
    QAction* glass_;
};

}  // namespace controls::select
