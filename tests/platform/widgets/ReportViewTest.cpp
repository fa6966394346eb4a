#include "platform/widgets/ReportView.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QStyle>
#include <vector>

namespace windows_test {

using platform::ReportView;

TEST(ReportView, ColumnsTakeTheRoomOfAGrownListAndGiveItBack) {
    QWidget parent;
    ReportView view(0, parent);
    const auto widths = [&] {
        return std::vector{view.columnWidth(0), view.columnWidth(1), view.columnWidth(2)};
    };
    // The list with room for this many pixels of columns.
    const auto resize = [&](int room) {
        view.resize(room + 2 * view.frameWidth() + view.style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                    200);
    };
    resize(350);
    parent.show();
    view.setColumnCount(3);
    for (const int column : {0, 1, 2}) view.setColumnWidth(column, column == 1 ? 120 : 130);
    resize(370);
    EXPECT_EQ(widths(), (std::vector{130, 120, 130})) << "they were wider than the list, and still are";
    resize(760);
    EXPECT_EQ(widths(), (std::vector{260, 240, 260}));
    resize(380);
    EXPECT_EQ(widths(), (std::vector{130, 120, 130}));
    view.setColumnWidth(0, 330);
    resize(400);
    EXPECT_EQ(widths(), (std::vector{330, 120, 130})) << "as the user has set them";
    resize(380);
    EXPECT_EQ(widths(), (std::vector{330, 120, 130}));
    view.setColumnWidth(0, 30);
    resize(330);
    EXPECT_EQ(view.header()->length(), 280) << "there was room enough";
}

}  // namespace windows_test
