#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "formats/WordRecords.h"
#include "platform/text/GreekLiteral.h"

namespace {

TEST(BundledContent, FormsOfAWordAreInOneGroupAndOtherWordsInAnother) {
    using namespace platform::literals;
    std::ifstream stream(CONTENT_DATA "/words.alt", std::ios::binary);
    const std::string records(std::istreambuf_iterator<char>(stream), {});
    const auto groupOf = [&](std::string_view word) {
        for (std::size_t at = 0; at < records.size(); at += formats::alternativeRecordSize) {
            const std::string_view record = std::string_view(records).substr(at);
            if (formats::alternativeWord(record) == word) return formats::alternativeGroup(record);
        }
        return 0;
    };
    EXPECT_EQ(groupOf("μόριο"_gr), groupOf("μορίων"_gr));
    EXPECT_EQ(groupOf("οξέα"_gr), groupOf("οξύ"_gr));
    EXPECT_NE(groupOf("νερό"_gr), 0);
    EXPECT_EQ(groupOf("νερό"_gr), groupOf("νερού"_gr));
    EXPECT_NE(groupOf("αέρια"_gr), groupOf("αέρα"_gr));
    EXPECT_EQ(groupOf("και"_gr), 0);
}

}  // namespace
