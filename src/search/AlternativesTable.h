#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files/FileSystem.h"

namespace kalyxo {

/// The file `words.alt` in memory, which groups the forms of a word.
class AlternativesTable {
  public:
    /// Reads the file of the data folder. When there is none, no word has other forms.
    void Load(const platform::FileSystem& files, std::string_view dataFolder,
              const platform::ProgressStep& step = {});

    /// The word, followed by the other forms of its group in file order, each once. The group is that of the
    /// word's first record; a word without a record belongs to the group −1.
    std::vector<std::string> FormsOf(std::string_view word) const;

  private:
    /// The bytes of the file. Its records are decoded when they are needed.
    std::string m_image;
};

}  // namespace kalyxo
