#pragma once

#include <string>
#include <vector>

#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "formats/WordRecords.h"
#include "tests/support/TestDrives.h"

/// A data folder with the files of the word search, on drive D:.
class SearchFolder : public TestDrives {
  public:
    void putAlternatives(const std::vector<formats::AlternativeRecord>& records) {
        put("D:\\words.alt", *formats::encodeAlternatives(records));
    }
    void putOccurrences(const std::vector<formats::OccurrenceRecord>& records) {
        put("D:\\words.dat", *formats::encodeOccurrences(records));
    }
    void putTitles(const std::string& key, const std::vector<formats::SectionTitleRecord>& records) {
        put("D:\\" + key + ".dat", *formats::encodeSectionTitles(records));
    }
    void putList(const std::string& file, const std::vector<std::string>& titles) {
        put("D:\\" + file, *formats::encodeTitleList(titles));
    }
};
