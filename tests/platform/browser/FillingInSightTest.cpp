#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QWidget>

#include "platform/browser/FillingInSight.h"
#include "platform/qt/Filling.h"
#include "platform/qt/QtChild.h"

using namespace platform;

namespace {

TEST(FillingInSight, HidesWhatLiesOutsideTheWindowAndFillsTheAreaOnceItIsBack) {
    QWidget window;
    window.resize(300, 200);
    window.setFocusPolicy(Qt::StrongFocus);
    QWidget component(&window);
    component.setGeometry(-80, 0, 40, 20);
    auto& area = makeQtChild<QWidget>(&component);
    makeQtChild<Filling>(component, &area);
    auto& page = makeQtChild<QWidget>(&area);
    page.setFocusPolicy(Qt::StrongFocus);
    makeQtChild<FillingInSight>(area, &page);
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_FALSE(page.isVisible());

    component.move(0, 0);
    EXPECT_FALSE(page.isVisible()) << "before it has its size";
    component.resize(100, 50);
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(page.size(), QSize(100, 50));
    page.setFocus();
    component.setGeometry(-80, 0, 40, 20);
    EXPECT_FALSE(page.isVisible());
    EXPECT_TRUE(window.hasFocus());

    component.move(0, 0);
    QCoreApplication::processEvents();
    EXPECT_TRUE(page.isVisible()) << "it keeps its size";
    EXPECT_EQ(page.size(), QSize(40, 20));
}

}  // namespace
