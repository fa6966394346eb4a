#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace controls::dataanalyser {

/// The line at the lower edge: where the facts come from, and what had to be left out.
class MessageLine : public QWidget {
  public:
    explicit MessageLine(QWidget* parent);

    /// `warning` stands out when there is one; all of its lines are in the tool tip.
    void setTexts(const QString& note, const QStringList& warnings);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString note_;
    QStringList warnings_;
};

}  // namespace controls::dataanalyser
