#include "formats/PageNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace {

using formats::pagePath;

TEST(PageNumber, PathFollowsFromTheNumber) {
    const struct {
        std::int32_t number;
        const char* path;
    } cases[] = {
        {11234, "01\\4\\123"},  {11004, "01\\4\\100"},  {10003, "01\\3\\000"},  {29999, "02\\9\\999"},
        {30000, "03\\0000"},    {40001, "04\\1\\000"},  {50001, "05\\0001"},    {60012, "06\\2\\001"},
        {70001, "07\\0001"},    {80010, "08\\0\\001"},  {99999, "09\\9999"},    {100000, "10\\0000"},
        {110005, "11\\5\\000"}, {120120, "12\\0\\012"}, {130007, "13\\7\\000"}, {140000, "14\\0000"},
        {170070, "17\\0070"},   {290000, "29\\0000"},   {370001, "37\\0001"},   {450000, "45\\0000"},
        {999999, "99\\9999"},   {1, "00\\0001"},        {9999, "00\\9999"},     {10000, "01\\0\\000"},
    };
    for (const auto& [number, path] : cases) EXPECT_EQ(pagePath(number), path) << number;
}

TEST(PageNumber, OtherNumbersHaveNoPath) {
    for (const std::int32_t number : {0, -1, -11234, 1000000, std::numeric_limits<std::int32_t>::max(),
                                      std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(pagePath(number), std::nullopt) << number;
    }
}

TEST(PageNumber, NoTwoNumbersShareAPath) {
    std::set<std::string> paths;
    for (std::int32_t number = 1; number <= formats::maxPageNumber; ++number) paths.insert(*pagePath(number));
    EXPECT_EQ(paths.size(), static_cast<std::size_t>(formats::maxPageNumber));
}

}  // namespace
