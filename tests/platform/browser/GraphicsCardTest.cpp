#include <gtest/gtest.h>

#include "platform/browser/EngineFlags.h"
#include "tests/support/TestFolder.h"

using namespace platform;

namespace {

TEST(GraphicsCard, IsThereWhenTheHostHasADeviceOfItsDriver) {
    struct Case {
        const char* device;
        bool draws;
    };
    for (const auto& [device, draws] :
         {Case{"dri/renderD128", true}, Case{"nvidia0", true}, Case{"dxg", true}, Case{"dri/card0", false},
          Case{"fb0", false}, Case{"nvidia-modeset", false}}) {
        const TestFolder folder;
        folder.write(device, "");
        EXPECT_EQ(hasGraphicsCard(folder.path().string()), draws) << device;
    }
    EXPECT_FALSE(hasGraphicsCard("/no/such/folder"));
}

}  // namespace
