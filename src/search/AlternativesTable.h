#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files/FileSystem.h"

namespace kalyxo {

/// `words.alt` in memory: which words are forms of one another.
class AlternativesTable {
  public:
    /// Reads the file of the data folder; without one no word has other forms.
    void Load(const platform::FileSystem& files, std::string_view dataFolder,
              const platform::ProgressStep& step = {});

    /// The word, and behind it the other forms of its group in file order, each once. The group is that of
    /// the word's first record; a word without record belongs to the group −1.
    std::vector<std::string> FormsOf(std::string_view word) const;

  private:
    /// The file as it is; the records are read where they stand.
    std::string m_image;
};

}  // namespace kalyxo
