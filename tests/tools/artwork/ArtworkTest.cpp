#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <vector>

#include "src/resources/ResourceTable.h"
#include "src/view/BarLayout.h"
#include "src/view/MainMenuLayout.h"

namespace {

QImage resource(const char* file) { return QImage(QStringLiteral(":/") + file); }

/// The same picture with twice the pixels.
QString sharper(const QString& file) { return QString(file).insert(file.lastIndexOf('.'), "-2x"); }

QImage mainMenu() { return QImage(QStringLiteral(ARTWORK_DIR "/images/mainmenu.bmp")); }

TEST(Artwork, AllButIconsAndPatternsHaveTwiceThePixelsToo) {
    int pictures = 0;
    for (const char* folder : {"bitmap", "cursor"}) {
        for (const QString& name : QDir(QStringLiteral(":/") + folder).entryList({"*.png"})) {
            if (name.endsWith("-2x.png") || name == "133.png") continue;
            ++pictures;
            const QString file = QStringLiteral(":/%1/%2").arg(folder, name);
            const QImage image(file);
            const QImage twice(sharper(file));
            EXPECT_EQ(twice.size(), image.size() * 2) << name.toStdString();
            EXPECT_NE(twice, image.scaled(twice.size())) << name.toStdString() << ": only blown up";
        }
    }
    EXPECT_EQ(pictures, 16);
}

TEST(Artwork, CursorsHaveTheHotSpotsThatTheProgramTakes) {
    const auto cursors = kalyxo::ProgramResources().cursors;
    EXPECT_FALSE(cursors.empty());
    for (const platform::CursorResource& cursor : cursors) {
        EXPECT_EQ(QImage(QStringLiteral(":/cursor/%1.png").arg(cursor.id)).text("HotSpot"),
                  QStringLiteral("%1 %2").arg(cursor.hotSpot.x).arg(cursor.hotSpot.y))
            << cursor.id;
    }
}

TEST(Artwork, BarSlotsDifferFromOneAnotherInEveryState) {
    std::vector<QImage> slotPictures;
    for (const char* file : {"bitmap/195.png", "bitmap/196.png", "bitmap/197.png"}) {
        for (int slot = 0; slot <= kalyxo::kMainMenuSlot; ++slot) {
            const int x = kalyxo::BarLayout().Place(slot, false).stripX;
            slotPictures.push_back(resource(file).copy(x + 1, 0, 51, 46));
        }
    }
    for (std::size_t a = 0; a < slotPictures.size(); ++a)
        for (std::size_t b = 0; b < a; ++b) EXPECT_NE(slotPictures[a], slotPictures[b]) << a << ' ' << b;
}

// What a slot shares with its neighbour, and what is stretched, must not show where it was copied.
TEST(Artwork, BarPiecesJoinWithoutSeams) {
    const QImage normal = resource("bitmap/197.png");
    const QImage hover = resource("bitmap/196.png");
    for (int x = 0; x <= 468; x += 52) EXPECT_EQ(normal.copy(x, 0, 1, 50), hover.copy(x, 0, 1, 50)) << x;
    for (int x = 473; x < 512; ++x) EXPECT_EQ(normal.copy(x, 0, 1, 50), normal.copy(472, 0, 1, 50)) << x;
    EXPECT_EQ(normal.copy(468, 0, 1, 50), normal.copy(472, 0, 1, 50));
    EXPECT_LT(qGray(resource("bitmap/188.png").pixel(0, 22)), qGray(normal.pixel(472, 23)));
}

TEST(Artwork, HalftoneIsACheckerboard) {
    const QImage image = resource("bitmap/133.png");
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(image.pixel(x, y) == image.pixel(0, 0), (x + y) % 2 == 0) << x << ',' << y;
}

TEST(Artwork, ButtonPicturesStandOnTheButtonFace) {
    for (const char* file : {"bitmap/166.png", "bitmap/167.png", "bitmap/168.png", "bitmap/200.png"})
        EXPECT_EQ(resource(file).pixelColor(0, 0), QColor(192, 192, 192)) << file;
    EXPECT_EQ(resource("bitmap/169.png"), resource("bitmap/170.png").mirrored(true, false));
}

TEST(Artwork, MainMenuFadesIntoTheBlackAroundIt) {
    const QImage menu = mainMenu();
    const QRect inside = menu.rect().adjusted(1, 1, -1, -1);
    for (int y = 0; y < menu.height(); ++y)
        for (int x = 0; x < menu.width(); ++x)
            EXPECT_TRUE(inside.contains(x, y) || menu.pixelColor(x, y) == QColor(Qt::black)) << x << ',' << y;
}

TEST(Artwork, MainMenuHasATileInEveryHotArea) {
    const QImage menu = mainMenu();
    const QColor black(Qt::black);
    for (const kalyxo::MainMenuArea& hot : kalyxo::MainMenuLayout::Areas()) {
        const QRect area(QPoint(hot.left, hot.top), QPoint(hot.right, hot.bottom));
        const QPoint centre = area.center();
        for (const QPoint inside : {QPoint(area.left(), centre.y()), QPoint(area.right(), centre.y()),
                                    QPoint(centre.x(), area.top()), QPoint(centre.x(), area.bottom())})
            EXPECT_NE(menu.pixelColor(inside), black) << inside.x() << ',' << inside.y();
    }
}

}  // namespace
