#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace controls::dataanalyser {

/// The line at the lower edge, with the source of the facts and with what had to be left out.
class MessageLine : public QWidget {
  public:
    explicit MessageLine(QWidget* parent);

    /// Shows a note and the first warning. The tool tip holds the note and all warnings.
    void setTexts(const QString& note, const QStringList& warnings);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString note_;
    QStringList warnings_;
};

}  // namespace controls::dataanalyser
