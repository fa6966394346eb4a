#include <gtest/gtest.h>

#include "formats/ElementIndex.h"
#include "formats/SectionTable.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "platform/text/GreekLiteral.h"

namespace {

using namespace std::string_literals;
using namespace platform::literals;

TEST(SectionTable, FindsSectionsByCodeAndKey) {
    for (const formats::Section& section : formats::sectionTable()) {
        EXPECT_EQ(formats::sectionByCode(section.code), &section);
        EXPECT_EQ(formats::sectionByKey(section.key), &section);
    }
    EXPECT_EQ(formats::sectionByKey("elemcomp")->code, 6);
    EXPECT_EQ(formats::sectionByKey("elemcomp")->startPage, 410000);
    // The exact bytes of the data files.
    EXPECT_EQ(formats::sectionByCode(2)->displayName, "\xC4\xEF\xEC\xDD\xF2");
    for (const int code : {-2, -1, 0, 8})
        EXPECT_EQ(formats::sectionByCode(static_cast<std::int16_t>(code)), nullptr);
    for (const char* key : {"", "React", "reac", "react "})
        EXPECT_EQ(formats::sectionByKey(key), nullptr) << key;
}

TEST(SectionTitles, RecordHasItsFieldsAtTheirPlaces) {
    const std::vector<formats::SectionTitleRecord> records{{std::string("Δομές"_gr), 0x01020304}};
    const std::string image = *formats::encodeSectionTitles(records);
    EXPECT_EQ(image, std::string("Δομές"_gr) + std::string(103, '\0') + "\x04\x03\x02\x01"s);
}

TEST(SectionTitles, PartialRecordIsIgnoredAndMissingNulEndsAtTheField) {
    EXPECT_TRUE(formats::decodeSectionTitles(std::string(111, 'x')).empty());
    const std::string image = std::string(108, 'x') + "\x01\0\0\0"s + std::string(111, 'y');
    const auto records = formats::decodeSectionTitles(image);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].title, std::string(108, 'x'));
    EXPECT_EQ(records[0].pageId, 1);
}

TEST(SectionTitles, TitleThatDoesNotFitIsNotWritten) {
    for (const std::string& title : {std::string(108, 'x'), "a\0b"s}) {
        const std::vector<formats::SectionTitleRecord> records{{"good", 1}, {title, 2}};
        EXPECT_EQ(formats::encodeSectionTitles(records), std::nullopt);
    }
}

TEST(TitleLists, ListNumberSelectsTheFile) {
    const struct {
        std::int32_t itemCode;
        std::optional<std::string_view> file;
        std::int32_t entry;
    } cases[] = {
        {10003, "elem.ttl", 3},     {20001, "comp.ttl", 1},     {49999, "country.ttl", 9999},
        {60000, "mineral.ttl", 0},  {80001, "sci.ttl", 1},      {110001, "photo.ttl", 1},
        {120001, "video.ttl", 1},   {130001, "mol.ttl", 1},     {740005, "history.ttl", 5},
        {760005, "history.ttl", 5}, {770005, "history.ttl", 5}, {750005, std::nullopt, 5},
        {30001, std::nullopt, 1},   {780001, std::nullopt, 1},  {9999, std::nullopt, 9999},
        {-10003, std::nullopt, -3},
    };
    for (const auto& [itemCode, file, entry] : cases) {
        EXPECT_EQ(formats::titleListFile(formats::listNumberOf(itemCode)), file) << itemCode;
        EXPECT_EQ(formats::entryNumberOf(itemCode), entry) << itemCode;
    }
}

TEST(TitleLists, EntriesAreCountedFromOne) {
    const std::vector<std::string> titles{std::string("Υδρογόνο"_gr), "",
                                          std::string(formats::maxEntryTitle, 'x')};
    const std::string image = *formats::encodeTitleList(titles);
    ASSERT_EQ(image.size(), 180U);
    EXPECT_EQ(formats::titleListOffset(3), 120U);
    for (std::int32_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(formats::entryTitle(image, i), titles[static_cast<std::size_t>(i) - 1]);
    }
    for (const std::int32_t entry : {-1, 0, 4, 5, 2'000'000'000}) {
        EXPECT_EQ(formats::entryTitle(image, entry), std::nullopt) << entry;
    }
}

TEST(TitleLists, PartialRecordIsNoEntryAndMissingNulEndsAtTheField) {
    const std::string image = std::string(60, 'x') + std::string(59, 'y');
    EXPECT_EQ(formats::entryTitle(image, 1), std::string(60, 'x'));
    EXPECT_EQ(formats::entryTitle(image, 2), std::nullopt);
    EXPECT_EQ(formats::encodeTitleList(std::vector{std::string(60, 'x')}), std::nullopt);
}

TEST(ElementIndex, HasPackedRecordsAndIgnoresAPartialOne) {
    const std::vector<formats::ElementPageRecord> records{{1, 410010}, {255, -2}};
    const std::string packed = formats::encodeElementIndex(records);
    EXPECT_EQ(packed, "\x01\x9A\x41\x06\x00\xFF\xFE\xFF\xFF\xFF"s);
    EXPECT_EQ(formats::decodeElementIndex(packed), records);
    for (std::size_t size = 0; size <= packed.size(); ++size) {
        EXPECT_EQ(formats::decodeElementIndex(packed.substr(0, size)).size(), size / 5) << size;
    }
}

}  // namespace
