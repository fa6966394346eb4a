#pragma once

#include <filesystem>

#include "platform/machine/Machine.h"

namespace kalyxo {

/// Where the cache folder of the program cannot be written, as in a home that is read-only or full, a
/// temporary folder of the host takes its place and is removed with the object. Elsewhere nothing changes.
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
