#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QWebEngineFindTextResult;
class QWebEngineView;

namespace platform {

/// The strip at the lower edge of a page in which the user looks for a text in the page. Letter case and
/// accents do not matter. It stays open while pages change, until Escape or its button closes it.
class FindStrip : public QWidget {
  public:
    /// Makes it, hidden, beside the view in the view's parent.
    explicit FindStrip(QWebEngineView& view);

    /// Shows it and gives it the keyboard focus.
    void open();
    void close();
    /// Copies what is selected in its field, while that has the keyboard focus; else copies nothing and is
    /// false.
    bool copySelection();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void layOut();
    void place();
    void find(bool backward);
    void tell(const QString& count);
    void showResult(const QWebEngineFindTextResult& result);

    QWebEngineView& view_;
    QLineEdit& field_;
    QLabel& count_;
};

}  // namespace platform
