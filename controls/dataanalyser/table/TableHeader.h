#pragma once

#include <QHeaderView>

namespace controls::dataanalyser {

/// The headings of the table. The heading of the column by which the rows are sorted has an arrow.
class TableHeader : public QHeaderView {
  public:
    explicit TableHeader(QWidget* parent);

    /// The largest font size in which all headings fit their columns.
    int commonPixels() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    QSize sizeHint() const override;

  private:
    QString text(int section) const;

    int pixels_ = 0;  // the font size, computed before each painting
};

}  // namespace controls::dataanalyser
