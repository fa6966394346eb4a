#pragma once

#include <filesystem>

#include "platform/machine/Machine.h"

namespace kalyxo {

/// Stands in for the cache folder of the program where that cannot be written, as in a home that is
/// read-only: a temporary folder of the host, gone with the object. Otherwise nothing.
class SpareCache {
  public:
    explicit SpareCache(platform::Machine& machine);
    ~SpareCache();
    SpareCache(const SpareCache&) = delete;
    SpareCache& operator=(const SpareCache&) = delete;

  private:
    std::filesystem::path m_folder;
};

}  // namespace kalyxo
