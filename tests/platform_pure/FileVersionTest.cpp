#include "platform/files/FileVersion.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/platform_pure/TestFolder.h"

namespace platform {
namespace {

std::string moduleBytes() {
    std::ifstream file(VERSIONED_MODULE, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

constexpr std::size_t headerSize = 64;

TEST(FileVersion, IsReadFromAModule) {
    EXPECT_EQ(fileVersionText(VERSIONED_MODULE), "1.0.40.0");
    EXPECT_EQ(fileVersionText("/proc/self/exe"), std::nullopt);  // a program without one
}

TEST(FileVersion, IsMissingInOtherFiles) {
    const TestFolder folder;
    std::string other = moduleBytes();
    EXPECT_EQ(fileVersionText(folder / "none"), std::nullopt);
    EXPECT_EQ(fileVersionText(folder.path()), std::nullopt);
    EXPECT_EQ(fileVersionText(folder.write("empty", "")), std::nullopt);
    EXPECT_EQ(fileVersionText(folder.write("text", std::string(1000, 'x'))), std::nullopt);
    other[4] = 1;  // a 32-bit object
    EXPECT_EQ(fileVersionText(folder.write("other", other)), std::nullopt);
}

TEST(FileVersion, DamagedModulesGiveNothingOrTheText) {
    const TestFolder folder;
    const std::string whole = moduleBytes();
    for (std::size_t size = 0; size < whole.size(); size += 37) {
        // The table of sections stands last, so no cut file has it whole.
        EXPECT_EQ(fileVersionText(folder.write("cut", whole.substr(0, size))), std::nullopt) << size;
    }
    const std::size_t sections = whole.size() - 40 * headerSize;
    for (std::size_t at = 0; at < whole.size(); at = at == headerSize ? sections : at + 1) {
        for (const char damage : {'\xFF', '\x00', '\x7F'}) {
            std::string damaged = whole;
            damaged[at] = damage;
            const auto version = fileVersionText(folder.write("damaged", damaged));
            EXPECT_LE(version.value_or("").size(), 255U);
        }
    }
}

TEST(FileVersion, ATextWithoutItsEndIsNone) {
    const TestFolder folder;
    std::string module = moduleBytes();
    const std::size_t text = module.find(std::string("1.0.40.0\0", 9));
    ASSERT_NE(text, std::string::npos);
    module[text + 8] = '1';
    EXPECT_EQ(fileVersionText(folder.write("unended", module)), std::nullopt);
    module[text] = '\0';
    EXPECT_EQ(fileVersionText(folder.write("emptied", module)), std::nullopt);
}

}  // namespace
}  // namespace platform
