#pragma once

#include <QHeaderView>

namespace controls::dataanalyser {

/// The headings of the table; the one that the rows are sorted by carries an arrow.
class TableHeader : public QHeaderView {
  public:
    explicit TableHeader(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    QSize sizeHint() const override;

  private:
    QString text(int section) const;
    /// The largest letters in which all headings fit their columns.
    int commonPixels() const;

    int pixels_ = 0;  // of the letters, settled anew by each painting
};

}  // namespace controls::dataanalyser
