#include "platform/files/FileVersion.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/support/TestFolder.h"

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

TEST(FileVersion, CutModulesHaveNone) {
    const TestFolder folder;
    const auto module = folder.write("cut", moduleBytes());
    // The table of sections stands last, so no cut file has it whole.
    for (auto size = std::filesystem::file_size(module); size-- > 0;) {
        std::filesystem::resize_file(module, size);
        ASSERT_EQ(fileVersionText(module), std::nullopt) << size;
    }
}

TEST(FileVersion, DamagedModulesGiveNothingOrAText) {
    const TestFolder folder;
    const std::string whole = moduleBytes();
    const auto module = folder.write("damaged", whole);
    std::fstream file(module, std::ios::binary | std::ios::in | std::ios::out);
    const auto set = [&file](std::size_t at, char byte) {
        file.seekp(static_cast<std::streamoff>(at));
        file.put(byte).flush();
    };
    const std::size_t sections = whole.size() - 40 * headerSize;  // and all that stands after them
    for (std::size_t at = 0; at < whole.size(); at = at == headerSize ? sections : at + 1) {
        for (const char damage : {'\xFF', '\x00', '\x7F'}) {
            set(at, damage);
            EXPECT_LE(fileVersionText(module).value_or("").size(), 255U);
        }
        set(at, whole[at]);
    }
    EXPECT_EQ(fileVersionText(module), "1.0.40.0");
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
