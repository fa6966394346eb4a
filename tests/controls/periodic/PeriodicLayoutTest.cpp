#include <gtest/gtest.h>

#include <vector>

#include "controls/periodic/TableLayout.h"
#include "controls/periodic/model/ElementKinds.h"

namespace controls::periodic {
namespace {

/// What a view has below the table.
std::vector<QRect> legendParts(const TableLayout& layout, TableView view) {
    std::vector<QRect> parts;
    if (!layout.slider(view).isEmpty()) parts.push_back(layout.slider(view));
    for (int kind = 1; kind <= kindCount(view); ++kind) parts.push_back(layout.kindItem(view, kind));
    if (!quantityOf(view)) return parts;
    for (const QRect& part : {layout.quantityName(view), layout.noDataItem(view), layout.colorBar(view),
                              layout.barFigures(view)}) {
        parts.push_back(part);
    }
    if (hasOtherScale(view)) parts.push_back(layout.scaleBox(view));
    return parts;
}

TEST(PeriodicLayout, EverythingLiesApartAndInsideAtAnySizeInAnyView) {
    for (const QSize size : {QSize(636, 354), QSize(640, 430), QSize(700, 900), QSize(1016, 640),
                             QSize(1904, 950), QSize(1900, 400)}) {
        const TableLayout layout(size);
        std::vector<QRect> common{layout.card(), layout.strip()};
        for (const Element& element : elements()) common.push_back(layout.cell(placeOf(element.number)));
        for (int group = 1; group <= columnCount; ++group) common.push_back(layout.groupLabel(group));
        for (int code = 0; code < viewCount; ++code) {
            SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height() << " view " << code);
            std::vector<QRect> areas = common;
            for (const QRect& part : legendParts(layout, *viewOfCode(code))) areas.push_back(part);
            for (std::size_t i = 0; i < areas.size(); ++i) {
                EXPECT_TRUE(QRect(QPoint(), size).contains(areas[i])) << i;
                for (std::size_t k = 0; k < i; ++k) {
                    EXPECT_FALSE(areas[i].intersects(areas[k])) << i << ' ' << k;
                }
            }
        }
        EXPECT_EQ(layout.elementAt(layout.cell(placeOf(92)).bottomRight()), 92);
        EXPECT_EQ(layout.kindAt(layout.kindItem(TableView::matter, 3).center(), TableView::matter), 3);
        EXPECT_EQ(layout.kindAt(layout.legend(TableView::density).center(), TableView::density), 0);
    }
}

TEST(PeriodicLayout, CellsAreLargeEnoughToReadInTheSmallestWindow) {
    const QSize cell = TableLayout(QSize(640, 430)).cellSize();
    EXPECT_GE(cell.width(), 30);
    EXPECT_GE(cell.height(), 30);
}

}  // namespace
}  // namespace controls::periodic
