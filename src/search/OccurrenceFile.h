#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/files/BinaryFile.h"
#include "src/search/SearchHit.h"

namespace kalyxo {

/// The open file `words.dat`, which holds the places of all words in no particular order.
class OccurrenceFile {
  public:
    /// Opens the file of the data folder. When there is none, nothing is found.
    OccurrenceFile(const platform::FileSystem& files, std::string_view dataFolder);

    /// Appends the places of a word in file order, until `hits` holds `limit` of them. Words are compared
    /// byte for byte. A partial last record is ignored. False when `step` has cancelled the search.
    bool Collect(std::string_view word, std::vector<SearchHit>& hits, std::size_t limit,
                 const platform::ProgressStep& step = {}) const;

  private:
    std::optional<platform::BinaryFile> m_file;
};

}  // namespace kalyxo
