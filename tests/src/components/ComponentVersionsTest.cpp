#include <gtest/gtest.h>

#include "src/components/FileVersionNumbers.h"

namespace {

using kalyxo::FileVersionNumbers;
using kalyxo::ParseFileVersion;

TEST(FileVersions, AreReadPartByPart) {
    const auto number = [](std::uint32_t high, std::uint32_t low) { return high * 65536 + low; };
    const struct {
        std::string_view text;
        FileVersionNumbers expected;
    } cases[] = {
        {"1.0.40.7", {number(1, 0), number(40, 7)}},
        {"1, 0, 40, 7", {number(1, 0), number(40, 7)}},
        {"1.2.3", {number(1, 2), 0}},
        {"3.4", {number(3, 4), 0}},
        {"7", {0, 0}},
        {"", {0, 0}},
        {"1.x.2y.", {number(1, 0), number(2, 0)}},
        {"65537.-1.4294967297.+2", {number(1, 65535), number(1, 2)}},
        {"1.2.3.4.5", {number(1, 2), number(3, 4)}},
    };
    for (const auto& one : cases) EXPECT_EQ(ParseFileVersion(one.text), one.expected) << one.text;
    EXPECT_LT(ParseFileVersion("1.0.9.0"), ParseFileVersion("1.0.10.0"));
    EXPECT_LT(ParseFileVersion("9.0.99.0"), ParseFileVersion("65535.0.0.0"));
}

}  // namespace
