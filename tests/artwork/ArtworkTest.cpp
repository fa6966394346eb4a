#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QtEndian>
#include <array>
#include <string>

namespace {

struct Expected {
    const char* file;
    int width;
    int height;
    QImage::Format format;
};

constexpr auto kRgb = QImage::Format_RGB32;  // what Qt reads a 24-bit PNG without alpha as
constexpr auto kRgba = QImage::Format_ARGB32;

constexpr std::array kResources = {
    Expected{"bitmap/195.png", 631, 50, kRgb},
    Expected{"bitmap/196.png", 631, 50, kRgb},
    Expected{"bitmap/197.png", 631, 50, kRgb},
    Expected{"bitmap/188.png", 5, 44, kRgb},
    Expected{"bitmap/133.png", 8, 8, QImage::Format_Mono},
    Expected{"bitmap/166.png", 15, 14, kRgb},
    Expected{"bitmap/167.png", 15, 14, kRgb},
    Expected{"bitmap/168.png", 16, 14, kRgb},
    Expected{"bitmap/169.png", 6, 11, kRgb},
    Expected{"bitmap/170.png", 6, 11, kRgb},
    Expected{"bitmap/200.png", 16, 14, kRgb},
    Expected{"bitmap/204.png", 48, 100, kRgb},
    Expected{"bitmap/205.png", 97, 29, kRgb},
    Expected{"bitmap/301.png", 16, 16, kRgba},
    Expected{"bitmap/302.png", 16, 16, kRgba},
    Expected{"bitmap/303.png", 16, 16, kRgba},
    Expected{"bitmap/304.png", 16, 16, kRgba},
    Expected{"cursor/131.png", 32, 32, kRgba},
    Expected{"cursor/132.png", 32, 32, kRgba},
    Expected{"cursor/145.png", 32, 32, kRgba},
    Expected{"cursor/192.png", 32, 32, kRgba},
    Expected{"icon/kalyxo-16.png", 16, 16, kRgba},
    Expected{"icon/kalyxo-24.png", 24, 24, kRgba},
    Expected{"icon/kalyxo-32.png", 32, 32, kRgba},
    Expected{"icon/kalyxo-48.png", 48, 48, kRgba},
    Expected{"icon/kalyxo-64.png", 64, 64, kRgba},
    Expected{"icon/kalyxo-128.png", 128, 128, kRgba},
    Expected{"icon/kalyxo-256.png", 256, 256, kRgba},
};

QImage resource(const char* file) { return QImage(QStringLiteral(":/") + file); }

/// The same picture with twice the pixels.
QString sharper(const QString& file) { return QString(file).insert(file.lastIndexOf('.'), "-2x"); }

QImage menuPicture(const char* name) {
    return QImage(QStringLiteral(ARTWORK_DIR "/images/%1.bmp").arg(name));
}

TEST(Artwork, ResourcesHaveTheirSizeAndAllButIconsAndPatternsTwiceThePixels) {
    for (const Expected& expected : kResources) {
        const QString file = expected.file;
        const QImage image = resource(expected.file);
        EXPECT_EQ(image.size(), QSize(expected.width, expected.height)) << expected.file;
        EXPECT_EQ(image.format(), expected.format) << expected.file;
        const QImage twice(":/" + sharper(file));
        if (file.startsWith("icon/") || file == "bitmap/133.png") {
            EXPECT_TRUE(twice.isNull()) << expected.file;
            continue;
        }
        EXPECT_EQ(twice.size(), image.size() * 2) << expected.file;
        EXPECT_NE(twice, image.scaled(twice.size())) << expected.file << ": only blown up";
    }
}

TEST(Artwork, TheStartPictureIsABitmapResource) {
    for (const int scale : {1, 2}) {
        QFile file(scale == 1 ? ":/bitmap/207.dib" : ":/bitmap/207-2x.dib");
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << scale;
        const QByteArray bytes = file.readAll();
        ASSERT_EQ(bytes.size(), 40 + 640 * 480 * 3 * scale * scale);
        EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData()), 40);
        EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData() + 4), 640 * scale);
        EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData() + 8), 480 * scale);
        EXPECT_EQ(qFromLittleEndian<qint16>(bytes.constData() + 14), 24);
        EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData() + 32), 0) << "no colour table";
    }
}

TEST(Artwork, CursorsKnowTheirHotSpot) {
    EXPECT_EQ(resource("cursor/131.png").text("HotSpot"), "9 15");
    EXPECT_EQ(resource("cursor/132.png").text("HotSpot"), "16 9");
    EXPECT_EQ(resource("cursor/145.png").text("HotSpot"), "12 5");
    EXPECT_EQ(resource("cursor/192.png").text("HotSpot"), "5 3");
}

TEST(Artwork, BarSlotsDifferFromOneAnotherInEveryState) {
    for (const char* file : {"bitmap/195.png", "bitmap/196.png", "bitmap/197.png"}) {
        const QImage strip = resource(file);
        for (int a = 0; a < 9; ++a)
            for (int b = a + 1; b < 9; ++b)
                EXPECT_NE(strip.copy(a * 52 + 1, 0, 51, 50), strip.copy(b * 52 + 1, 0, 51, 50))
                    << file << ": slots " << a << " and " << b;
    }
}

TEST(Artwork, BarStatesDifferInEverySlot) {
    const QImage normal = resource("bitmap/197.png");
    const QImage hover = resource("bitmap/196.png");
    const QImage selected = resource("bitmap/195.png");
    for (const int x : {0, 52, 104, 156, 208, 260, 312, 364, 416, 520}) {
        const QRect slot(x + 1, 0, 51, 46);
        EXPECT_NE(normal.copy(slot), hover.copy(slot)) << x;
        EXPECT_NE(normal.copy(slot), selected.copy(slot)) << x;
        EXPECT_NE(hover.copy(slot), selected.copy(slot)) << x;
    }
    EXPECT_NE(normal.copy(572, 0, 58, 46), hover.copy(572, 0, 58, 46));
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

TEST(Artwork, MenuPicturesAreBottomUp24BitFiles) {
    for (const char* name :
         {"mainmenu", "pte", "da", "cm", "struct", "ca", "ec", "source", "history", "concepts"}) {
        QFile file(QStringLiteral(ARTWORK_DIR "/images/%1.bmp").arg(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const QByteArray bytes = file.readAll();
        ASSERT_GE(bytes.size(), 54) << name;
        const bool menu = qstrcmp(name, "mainmenu") == 0;
        EXPECT_EQ(menuPicture((std::string(name) + "-2x").c_str()).size(), menuPicture(name).size() * 2)
            << name;
        const QSize size = menu ? QSize(628, 384) : QSize(369, 191);
        const auto at = [&bytes](int offset) {
            return qFromLittleEndian<qint32>(bytes.constData() + offset);
        };
        EXPECT_EQ(at(18), size.width()) << name;
        EXPECT_EQ(at(22), size.height()) << name << ": rows must be stored bottom-up";
        EXPECT_EQ(qFromLittleEndian<qint16>(bytes.constData() + 28), 24) << name;
        EXPECT_EQ(at(30), 0) << name << ": must not be compressed";
        EXPECT_EQ(bytes.size() - at(10), (size.width() * 3 + 3) / 4 * 4 * size.height()) << name;
    }
}

TEST(Artwork, MainMenuFadesIntoTheBlackAroundIt) {
    const QImage menu = menuPicture("mainmenu");
    const QRect inside = menu.rect().adjusted(1, 1, -1, -1);
    for (int y = 0; y < menu.height(); ++y)
        for (int x = 0; x < menu.width(); ++x)
            EXPECT_TRUE(inside.contains(x, y) || menu.pixelColor(x, y) == QColor(Qt::black)) << x << ',' << y;
}

TEST(Artwork, MainMenuHasATileInEveryHotArea) {
    constexpr std::array kHotAreas = {
        QRect(40, 239, 59, 53), QRect(40, 161, 59, 53),  QRect(39, 84, 60, 53),
        QRect(166, 20, 60, 53), QRect(285, 20, 60, 53),  QRect(395, 20, 60, 53),
        QRect(530, 85, 59, 52), QRect(529, 162, 59, 52), QRect(529, 240, 60, 52),
    };
    const QImage menu = menuPicture("mainmenu");
    const QColor black(Qt::black);
    for (const QRect& area : kHotAreas) {
        const QPoint centre = area.center();
        for (const QPoint inside : {QPoint(area.left(), centre.y()), QPoint(area.right(), centre.y()),
                                    QPoint(centre.x(), area.top()), QPoint(centre.x(), area.bottom())})
            EXPECT_NE(menu.pixelColor(inside), black) << inside.x() << ',' << inside.y();
    }
}

}  // namespace
