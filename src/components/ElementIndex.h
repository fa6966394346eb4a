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

/// The index of the elements' pages.
class ElementIndex {
  public:
    /// Reads the index of the data folder. False when there is none; the index then stays as it was.
    bool Load(const platform::FileSystem& files, std::string_view dataFolder);

    /// The page id of the first record with this key, nothing when there is none.
    std::optional<std::int32_t> PageOf(std::int16_t elementKey) const;

  private:
    std::vector<formats::ElementPageRecord> m_records;
};

}  // namespace kalyxo
