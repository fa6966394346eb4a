#include <gtest/gtest.h>

#include "src/view/PictureCapture.h"

namespace {

using kalyxo::LayOutPrintedPicture;
using kalyxo::PluginKind;
using kalyxo::PrintedPicture;
using platform::CRect;

TEST(PrintedPictures, AreHalfAPageWideAndHeadedByTheirTitle) {
    EXPECT_EQ(LayOutPrintedPicture(PluginKind::video, {4801, 6800}, 300),
              (PrintedPicture{CRect::at(1200, 1666, 2400, 1800), CRect{0, 555, 4801, 1666}, 42}));
    // On a page as flat as this the picture begins above it.
    EXPECT_EQ(LayOutPrintedPicture(PluginKind::video, {400, 100}, 72).picture, CRect::at(100, -16, 200, 150));
}

}  // namespace
