#pragma once

#include <string>
#include <string_view>

#include "formats/BrowseIndex.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"

/// A small index of two sections, for tests.
namespace sample {

using namespace platform::literals;

inline constexpr std::int16_t history = 5;
inline constexpr std::int16_t elements = 6;

inline std::string text(std::string_view cp1253) { return std::string(cp1253); }

inline formats::BrowseTopic topic(std::int32_t pageId, std::int32_t pageNumber, std::string_view title,
                                  std::vector<formats::BrowseEntry> entries = {}) {
    return {pageId, pageNumber, std::string(title), std::move(entries)};
}

inline formats::BrowseEntry entry(std::int32_t itemCode, std::string_view title) {
    return {itemCode, std::string(title)};
}

/// Topics of `elements`, by position: 0 start page, 1 alkali metals with lithium and sodium, 2 acids with
/// sulphuric acid and hydrochloric acid, 3 water without entries. `history` has an entry under its start
/// page.
inline formats::BrowseIndex index() {
    return {{
        {history,
         {topic(320000, 320000, "Ιστορία"_gr, {entry(740001, "Χρονολόγιο"_gr)}),
          topic(320010, 320010, "Ο Λαβουαζιέ και ο νόμος"_gr, {entry(80001, "Λαβουαζιέ"_gr)})}},
        {elements,
         {topic(410000, 410000, "Στοιχεία και ενώσεις"_gr),
          topic(410010, 410011, "Τα αλκάλια"_gr, {entry(10003, "Λίθιο"_gr), entry(10011, "Νάτριο"_gr)}),
          topic(410020, 410020, "Οξέα, ΆΛΑΤΑ και βάσεις"_gr,
                {entry(20001, "Θειικό οξύ"_gr), entry(20002, "Υδροχλωρικό οξύς"_gr)}),
          topic(410030, 410030, "Νερό"_gr)}},
    }};
}

}  // namespace sample
