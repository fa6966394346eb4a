#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "controls/contract/ClassIds.h"
#include "src/components/Component.h"

namespace kalyxo {

/// The data analyser.
class CDataAnal : public Component<CDataAnal> {
  public:
    static constexpr std::string_view kName = "CDataAnal";
    static constexpr std::string_view kClass = controls::dataAnalyserClass;

    std::string Version() { return Get<std::string>(1); }
    /// 0 when the table is shown, else a graph is.
    std::int16_t GetViewMode() { return Get<std::int16_t>(2); }
    void SetViewMode(std::int16_t mode) { Put(2, mode); }

    /// @name The state that a bookmark keeps. Only the component knows what its values mean.
    /// @{
    std::int16_t GetOption3() { return Get<std::int16_t>(3); }
    void SetOption3(std::int16_t value) { Put(3, value); }
    std::int32_t GetOption4() { return Get<std::int32_t>(4); }
    void SetOption4(std::int32_t value) { Put(4, value); }
    bool GetFlag5() { return Get<bool>(5); }
    void SetFlag5(bool value) { Put(5, value); }
    bool GetFlag6() { return Get<bool>(6); }
    void SetFlag6(bool value) { Put(6, value); }
    std::int16_t GetOption7() { return Get<std::int16_t>(7); }
    void SetOption7(std::int16_t value) { Put(7, value); }
    std::int32_t GetValue8() { return Get<std::int32_t>(8); }
    std::int16_t GetValue9() { return Get<std::int16_t>(9); }
    /// The location of a block of `GetValue8` bytes.
    std::int32_t GetValue11() { return Method<std::int32_t>(17); }
    void SetValues(std::int32_t value8, std::int16_t value9, std::int32_t value11) {
        Method<void>(18, value8, value9, value11);
    }
    std::int16_t GetMode() { return Method<std::int16_t>(13); }
    void SetMode(std::int16_t mode) { Method<void>(15, mode); }
    /// The location of a block of words. The first word is their number; each other word stands for an entry.
    std::int32_t GetEntryCountRef() { return Method<std::int32_t>(14); }
    void SetEntryCountRef(std::int32_t location) { Method<void>(16, location); }
    std::int32_t GetEntry(std::int16_t index) { return Method<std::int32_t>(21, index); }
    void SetEntry(std::int16_t index, std::int32_t value) { Method<void>(20, index, value); }
    /// The bytes at a location of the component, valid until the next call.
    std::span<const std::byte> Block(std::int32_t location) const { return ComponentBlock(location); }
    /// Gives the component a block of bytes to keep and returns its location. It keeps the last two.
    std::int32_t KeepBlock(std::span<const std::byte> bytes) { return KeepComponentBlock(bytes); }
    /// @}

    /// To be called once, right after creation.
    void Initialise(std::int32_t hostCode, const std::string& dataFolder) {
        Method<void>(10, hostCode, dataFolder);
    }
    void CopyAllData() { Method<void>(11); }
    void CopySelection() { Method<void>(12); }
    void PrintView() { Method<void>(23); }
    std::int16_t CopyGraph() { return Method<std::int16_t>(22); }
};

}  // namespace kalyxo
