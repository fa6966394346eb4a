#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "formats/ElementIndex.h"

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// Leads from an element of the periodic table to its page.
class ElementIndex {
  public:
    /// Reads the index of the data folder; false, with the index as it was, when there is none.
    bool Load(const platform::FileSystem& files, std::string_view dataFolder);

    /// The page id of the first record with this key; nothing for a key without record.
    std::optional<std::int32_t> PageOf(std::int16_t elementKey) const;

  private:
    std::vector<formats::ElementPageRecord> m_records;
};

}  // namespace kalyxo
