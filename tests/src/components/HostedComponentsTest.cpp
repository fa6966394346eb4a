#include "src/components/HostedComponents.h"

#include <gtest/gtest.h>

#include "src/components/ElementIndex.h"
#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

TEST(ElementIndexTest, TheFirstRecordOfAKeyCounts) {
    TestDrives drives;
    ElementIndex index;
    drives.put("D:\\ptable.ndx", std::string("\x01\x0A\0\0\0\xFF\x0B\0\0\0\x01\x0C\0\0\0", 15));
    EXPECT_TRUE(index.Load(drives.files, "D:\\"));
    EXPECT_EQ(index.PageOf(1), 10);
    EXPECT_EQ(index.PageOf(255), 11);
    EXPECT_FALSE(index.PageOf(-1) || index.PageOf(257) || index.PageOf(2));
}

TEST(ComponentVersionsTest, AreComparedAsText) {
    EXPECT_TRUE(OutdatedComponents({"1.0.023", "1.0.021", "1.0.032", "1.0.012", "1.0.010"}).empty());
    EXPECT_TRUE(OutdatedComponents({"1.0.023", "1.0.21", "1.0.100", "1.0.012", "1.0.010"}).empty());
    EXPECT_EQ(OutdatedComponents({"1.0.022", "1.0.020", "1.0.031", "1.0.011", "1.0.009"}).size(), 5U);
    EXPECT_EQ(OutdatedComponents({"1.0.022", "", "1.0.03", "1.0.0", "0"}),
              (std::vector<std::string_view>{"KZDATAAN", "KYPT", "KZSELECT", "KYMOL", "KZZOOM"}));
}

}  // namespace
}  // namespace kalyxo
