#include "formats/BrowseIndex.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "formats/RecordFields.h"
#include "platform/text/GreekLiteral.h"

namespace {

using namespace std::string_literals;
using namespace platform::literals;
using formats::decodeBrowseIndex;
using formats::encodeBrowseIndex;

// Offsets in the image of `sampleIndex`.
constexpr std::size_t sectionsAt = 20;
constexpr std::size_t topicsAt = sectionsAt + 2 * 8;
constexpr std::size_t entriesAt = topicsAt + 3 * 16;
constexpr std::size_t textsAt = entriesAt + 2 * 8;

formats::BrowseIndex sampleIndex() {
    return {{{6,
              {{410000, 410000, std::string("Στοιχεία"_gr), {}},
               {410010, 410010, "Gases", {{10001, std::string("Υδρογόνο"_gr)}, {10002, ""}}}}},
             {2, {{370001, 370001, std::string(formats::maxSectionTitle, 'x'), {}}}}}};
}

/// The image of the sample with one integer changed.
template <typename T>
std::string damaged(std::size_t offset, T value) {
    std::string image = *encodeBrowseIndex(sampleIndex());
    std::string bytes;
    formats::appendInteger(bytes, value);
    std::ranges::copy(bytes, image.begin() + static_cast<std::ptrdiff_t>(offset));
    return image;
}

/// The image of the sample with the texts before the last one run together with it.
std::string withoutFirstTitleEnds() {
    constexpr std::size_t beforeLast = 25;
    return encodeBrowseIndex(sampleIndex())->replace(textsAt, beforeLast, beforeLast, 'x');
}

TEST(BrowseIndex, ComesBackAsWritten) {
    for (const formats::BrowseIndex& index : {sampleIndex(), formats::BrowseIndex{}, {{{1, {}}}}}) {
        const auto image = encodeBrowseIndex(index);
        ASSERT_TRUE(image);
        EXPECT_EQ(decodeBrowseIndex(*image), index);
    }
}

TEST(BrowseIndex, HasItsBlocksWhereTheDescriptionSays) {
    const std::string image = *encodeBrowseIndex(sampleIndex());
    EXPECT_EQ(image.substr(0, sectionsAt), "KSEL\x01\0\x02\0\x03\0\0\0\x02\0\0\0"s +
                                               static_cast<char>(image.size() - textsAt) + "\0\0\0"s);
    EXPECT_EQ(image.substr(sectionsAt, 8), "\x06\0\0\0\x02\0\0\0"s);
    EXPECT_EQ(image.substr(topicsAt + 16, 16), "\x9A\x41\x06\0\x9A\x41\x06\0\x09\0\0\0\x02\0\0\0"s);
    EXPECT_EQ(image.substr(entriesAt, 8), "\x11\x27\0\0\x0F\0\0\0"s);
    EXPECT_EQ(image.substr(textsAt + 9, 6), "Gases\0"s);
}

TEST(BrowseIndex, FindsTopicsAndEntries) {
    const formats::BrowseIndex index = sampleIndex();
    EXPECT_EQ(formats::findTopic(index, 370001), &index.sections[1].topics[0]);
    EXPECT_EQ(formats::findTopic(*formats::findSection(index, 6), 370001), nullptr);
    EXPECT_EQ(formats::findSection(index, 1), nullptr);
    const auto place = formats::findEntry(index, 10002);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->section->code, 6);
    EXPECT_EQ(place->topic->pageId, 410010);
    EXPECT_EQ(place->entry->itemCode, 10002);
    EXPECT_FALSE(formats::findEntry(index, 410010));
}

TEST(BrowseIndex, NoPartOfAFileIsAFile) {
    const std::string image = *encodeBrowseIndex(sampleIndex());
    for (std::size_t size = 0; size < image.size(); ++size) {
        EXPECT_EQ(decodeBrowseIndex(image.substr(0, size)), std::nullopt) << size;
    }
    EXPECT_EQ(decodeBrowseIndex(image + '\0'), std::nullopt);
}

TEST(BrowseIndex, DamageIsRefused) {
    const struct {
        const char* what;
        std::string image;
    } cases[] = {
        {"magic", damaged<std::uint8_t>(0, 'k')},
        {"version", damaged<std::uint16_t>(4, 2)},
        {"section count", damaged<std::uint16_t>(6, 3)},
        {"huge topic count", damaged<std::uint32_t>(8, 0xFFFFFFFF)},
        {"entry count for topic count", damaged<std::uint32_t>(12, 0)},
        {"huge text size", damaged<std::uint32_t>(16, 0xFFFFFFFF)},
        {"unknown section", damaged<std::int16_t>(sectionsAt, 8)},
        {"section twice", damaged<std::int16_t>(sectionsAt, 2)},
        {"more topics than there are", damaged<std::uint32_t>(sectionsAt + 4, 4)},
        {"huge number of topics", damaged<std::uint32_t>(sectionsAt + 4, 0x10000001)},
        {"topics left over", damaged<std::uint32_t>(sectionsAt + 4, 1)},
        {"page id 0", damaged<std::int32_t>(topicsAt, 0)},
        {"page number out of range", damaged<std::int32_t>(topicsAt + 4, 1000000)},
        {"title behind the texts", damaged<std::uint32_t>(topicsAt + 8, 200)},
        {"title far behind the texts", damaged<std::uint32_t>(topicsAt + 8, 0xFFFFFFFF)},
        {"more entries than there are", damaged<std::uint32_t>(topicsAt + 12, 3)},
        {"huge number of entries", damaged<std::uint32_t>(topicsAt + 12, 0x20000001)},
        {"entries left over", damaged<std::uint32_t>(topicsAt + 16 + 12, 1)},
        {"negative item code", damaged<std::int32_t>(entriesAt, -10001)},
        {"entry title behind the texts", damaged<std::uint32_t>(entriesAt + 4, 1000)},
        {"title too long", withoutFirstTitleEnds()},
        {"last title without NUL", damaged<std::uint8_t>(encodeBrowseIndex(sampleIndex())->size() - 1, 'x')},
    };
    for (const auto& [what, image] : cases) EXPECT_EQ(decodeBrowseIndex(image), std::nullopt) << what;
}

// Whatever byte is wrong, reading fails in the normal way and allocates no more than the file has.
TEST(BrowseIndex, AnyByteMayBeWrong) {
    const std::string image = *encodeBrowseIndex(sampleIndex());
    for (std::size_t offset = 0; offset < image.size(); ++offset) {
        for (const int flip : {0x01, 0x80, 0xFF}) {
            std::string wrong = image;
            wrong[offset] = static_cast<char>(wrong[offset] ^ flip);
            const auto index = decodeBrowseIndex(wrong);
            EXPECT_TRUE(!index || index->sections.size() == 2U);
        }
    }
}

TEST(BrowseIndex, WhatCannotBeReadBackIsNotWritten) {
    formats::BrowseIndex index = sampleIndex();
    index.sections[0].topics[0].title = "a\0b"s;
    EXPECT_EQ(encodeBrowseIndex(index), std::nullopt);
    index = sampleIndex();
    index.sections[1].topics[0].title += 'x';
    EXPECT_EQ(encodeBrowseIndex(index), std::nullopt);
    index = sampleIndex();
    index.sections[1].code = 6;
    EXPECT_EQ(encodeBrowseIndex(index), std::nullopt);
}

TEST(BrowseIndex, TitleFilesMakeTopicsWithoutEntries) {
    const std::vector<formats::SectionTitleRecord> react{
        {"Start", 170070}, {"Not a page", 0}, {"Acids", 170100}};
    const std::vector<formats::SectionTitleRecord> other{{"Other", 5}};
    const std::string reactImage = *formats::encodeSectionTitles(react) + "rest";
    const std::string otherImage = *formats::encodeSectionTitles(other);
    const formats::SectionTitleFile files[] = {{1, reactImage}, {8, otherImage}, {1, otherImage}, {3, ""}};

    const formats::BrowseIndex index = formats::browseIndexFromTitles(files);
    const formats::BrowseIndex expected{
        {{1, {{170070, 170070, "Start", {}}, {170100, 170100, "Acids", {}}}}, {3, {}}}};
    EXPECT_EQ(index, expected);
}

}  // namespace
