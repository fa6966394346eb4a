#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/base/Object.h"
#include "src/pages/PageAddress.h"

namespace kalyxo {

/// A record of the bookmark list: a folder, or a bookmark in it. Records of all classes have a name, in code
/// page 1253.
class CBookmark : public platform::CObject {
  public:
    /// A copy with another name; blocks are copied too.
    virtual std::unique_ptr<CBookmark> Renamed(std::string newName) const = 0;

    std::string name;
};

/// Whether a record is a folder.
bool IsFolder(const CBookmark& record);

/// A folder of bookmarks.
class CBMFolder : public CBookmark {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    void Serialize(platform::CArchive& archive) override;
    std::unique_ptr<CBookmark> Renamed(std::string newName) const override;
};

/// A content page. A file may hold any section code.
class CBMBrowse : public CBookmark, public PageAddress {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    void Serialize(platform::CArchive& archive) override;
    std::unique_ptr<CBookmark> Renamed(std::string newName) const override;
};

/// A state of the periodic table, in the two halves in which the component gives it.
class CBMPeriodic : public CBookmark {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    void Serialize(platform::CArchive& archive) override;
    std::unique_ptr<CBookmark> Renamed(std::string newName) const override;

    std::int32_t stateB = 0;
    std::int32_t stateA = 0;
};

/// A state of the data analyser. Only the component knows what the values mean.
struct AnalyserState {
    std::int16_t mode = 0;
    /// K words, K at least 1 and itself the first of them.
    std::vector<std::int32_t> entryBlock{1};
    std::int16_t viewMode = 0;
    std::int16_t option3 = 0;
    std::int32_t flag5 = 0;  ///< 0 or 1
    std::int32_t flag6 = 0;  ///< 0 or 1
    std::int32_t option4 = 0;
    std::int16_t option7 = 0;
    std::int32_t value8 = 0;
    std::int16_t value9 = 0;
    std::vector<std::byte> value11;     ///< `value8` bytes, none when that is below 1
    std::vector<std::int32_t> entries;  ///< K − 1 of them
};

/// A bookmark of the data analyser, with what it shows.
class CBMDataAn : public CBookmark, public AnalyserState {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    void Serialize(platform::CArchive& archive) override;
    std::unique_ptr<CBookmark> Renamed(std::string newName) const override;

  private:
    void exchangeBlocks(platform::CArchive& archive);
};

}  // namespace kalyxo
