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

    /// Carries out the messages for cut, copy and paste; all others are left alone. Always 0.
    platform::LRESULT receive(platform::UINT message);

    /// Types a text as if the field had the focus already.
    void takeTyping(const QString& text);

  signals:
    /// A key that leads into the list was pressed.
    void leftAtBottom();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void nameButtons();
    QAction* glass_;
};

}  // namespace controls::select
