#include <gtest/gtest.h>

#include <QImage>
#include <QResource>

#include "platform/base/ControlMessages.h"
#include "platform/base/Resources.h"
#include "platform/machine/Machine.h"
#include "platform/windows/SurfaceWidget.h"
#include "platform/windows/WindowDC.h"
#include "src/app/SplashDlg.h"
#include "src/display/PictureButton.h"
#include "src/resources/ResourceIds.h"
#include "src/resources/ResourceTable.h"
#include "src/view/SectionBar.h"

// Outside any namespace, where the compiled resources are.
static void dropArtwork() { Q_CLEANUP_RESOURCE(artwork); }
static void bringArtworkBack() { Q_INIT_RESOURCE(artwork); }

/// What the program draws its own pictures with, and what it does when it lacks them.
namespace kalyxo {
namespace {

using namespace platform;

constexpr COLORREF empty = RGB(255, 0, 255);

/// For its lifetime the program has no bitmaps.
struct WithoutArtwork {
    WithoutArtwork() { dropArtwork(); }
    ~WithoutArtwork() { bringArtworkBack(); }
    WithoutArtwork(const WithoutArtwork&) = delete;
    WithoutArtwork& operator=(const WithoutArtwork&) = delete;
};

/// A bitmap of one colour to draw on.
CBitmap sheet(int width, int height) {
    BITMAPINFOHEADER header;
    header.biWidth = width;
    header.biHeight = height;
    CBitmap bitmap;
    const int row = (width * 3 + 3) / 4 * 4;  // bytes
    const auto bytes = static_cast<std::size_t>(row) * static_cast<std::size_t>(height);
    bitmap.CreateDIBitmap(header, {}, std::vector<std::byte>(bytes));
    CDC dc = CDC::CreateCompatibleDC(CDC());
    dc.SelectObject(bitmap);
    dc.FillSolidRect({0, 0, width, height}, empty);
    return bitmap;
}

bool isEmpty(const QImage& image, int x, int y) { return image.pixelColor(x, y) == QColor(255, 0, 255); }

/// How many pixels something was drawn on.
int drawnPixels(const QImage& image) {
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) drawn += isEmpty(image, x, y) ? 0 : 1;
    }
    return drawn;
}

class ProgramPicturesTest : public ::testing::Test {
  protected:
    ProgramPicturesTest() : machine_(::testing::TempDir(), MachineConfig(), Registry()) {
        machine_.setVirtualTime(true);
        setMachine(&machine_);
        SetResources(ProgramResources());
    }
    ~ProgramPicturesTest() override { setMachine(nullptr); }

    /// The start picture's window in one colour, and then what its own drawing leaves there.
    static QImage afterErasing(CSplashDlg& splash) {
        CClientDC dc(splash);
        dc.FillSolidRect({0, 0, 640, 480}, empty);
        EXPECT_EQ(splash.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<CDC*>(&dc))), 1);
        return SurfaceWidget::of(splash)->picture();
    }

    Machine machine_;
};

TEST_F(ProgramPicturesTest, TheBarIsDrawnWithItsStripsOrNotAtAll) {
    const auto drawnByBar = [] {
        const SectionBar bar;
        const CBitmap target = sheet(636, 50);
        CDC dc = CDC::CreateCompatibleDC(CDC());
        dc.SelectObject(target);
        bar.DrawBar(dc);
        return drawnPixels(target.Image());
    };
    EXPECT_EQ(drawnByBar(), 636 * 50);
    const WithoutArtwork without;
    EXPECT_EQ(drawnByBar(), 0);
}

TEST_F(ProgramPicturesTest, TheStartPicturesTopLeftPartStandsForItsBackground) {
    CSplashDlg splash;
    const QImage shown = afterErasing(splash);
    for (const QPoint in : {QPoint(0, 0), QPoint(399, 374)}) EXPECT_FALSE(isEmpty(shown, in.x(), in.y()));
    for (const QPoint out : {QPoint(400, 374), QPoint(399, 375), QPoint(639, 479)}) {
        EXPECT_TRUE(isEmpty(shown, out.x(), out.y())) << out.x() << ',' << out.y();
    }
    EXPECT_EQ(drawnPixels(shown), 400 * 375);
}

TEST_F(ProgramPicturesTest, WithoutItsPictureTheStartWindowStandsEmpty) {
    const WithoutArtwork without;
    CSplashDlg splash;
    EXPECT_TRUE(splash.IsWindowVisible());
    EXPECT_EQ(drawnPixels(afterErasing(splash)), 0);
}

TEST_F(ProgramPicturesTest, AButtonsLargePictureShowsItsMiddle) {
    CSplashDlg parent;
    CPictureButton button;
    ASSERT_TRUE(button.Create(CRect::at(0, 0, 23, 22), parent, 801, IDB_BAR_NORMAL, ""));
    const CBitmap target = sheet(23, 22);
    CDC dc = CDC::CreateCompatibleDC(CDC());
    dc.SelectObject(target);
    button.DrawItem({dc, {0, 0, 23, 22}, false});
    CBitmap strip;
    ASSERT_TRUE(strip.LoadBitmap(IDB_BAR_NORMAL));
    for (const QPoint at : {QPoint(0, 0), QPoint(11, 10), QPoint(22, 21)}) {
        EXPECT_EQ(target.Image().pixelColor(at), strip.Image().pixelColor(at + QPoint(304, 14)));
    }
}

TEST_F(ProgramPicturesTest, AButtonWithoutItsPictureIsNotMade) {
    const WithoutArtwork without;
    CSplashDlg parent;
    CPictureButton button;
    EXPECT_FALSE(button.Create(CRect::at(0, 0, 23, 22), parent, 801, IDB_TOOL_COPY, ""));
    EXPECT_EQ(button.GetSafeHwnd(), 0);
}

}  // namespace
}  // namespace kalyxo
