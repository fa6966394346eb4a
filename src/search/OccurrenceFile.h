#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/files/BinaryFile.h"
#include "src/search/SearchHit.h"

namespace kalyxo {

/// `words.dat`, open for reading: where each word is indexed, in no order.
class OccurrenceFile {
  public:
    /// Opens the file of the data folder; without one nothing is found.
    OccurrenceFile(const platform::FileSystem& files, std::string_view dataFolder);

    /// Appends the places of a word, compared byte for byte, in file order, until `hits` holds `limit`. A
    /// partial last record is ignored. False when `step` has cancelled it.
    bool Collect(std::string_view word, std::vector<SearchHit>& hits, std::size_t limit,
                 const platform::ProgressStep& step = {}) const;

  private:
    std::optional<platform::BinaryFile> m_file;
};

}  // namespace kalyxo
