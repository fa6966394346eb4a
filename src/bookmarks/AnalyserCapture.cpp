#include "src/bookmarks/AnalyserCapture.h"

#include <algorithm>
#include <limits>

namespace kalyxo {

namespace {

constexpr std::size_t kWord = sizeof(std::int32_t);
/// Entries are numbered by a signed number of two bytes.
constexpr std::size_t kMaxEntries = std::size_t{std::numeric_limits<std::int16_t>::max()} + 1;

std::int32_t wordOf(std::span<const std::byte> bytes) {
    std::uint32_t word = 0;
    for (std::size_t i = 0; i < kWord; ++i) word |= std::to_integer<std::uint32_t>(bytes[i]) << (8 * i);
    return static_cast<std::int32_t>(word);
}

/// The words of a block, as many as its first word says; one word, 1, when the block is shorter than that.
std::vector<std::int32_t> countedWords(std::span<const std::byte> bytes) {
    std::vector<std::int32_t> words;
    for (; bytes.size() >= kWord; bytes = bytes.subspan(kWord)) words.push_back(wordOf(bytes));
    const std::int32_t count = words.empty() ? 0 : words.front();
    if (count < 1 || static_cast<std::size_t>(count) > words.size()) return {1};
    words.resize(static_cast<std::size_t>(count));
    return words;
}

std::vector<std::byte> bytesOf(const std::vector<std::int32_t>& words) {
    std::vector<std::byte> bytes;
    for (const std::int32_t word : words) {
        for (std::size_t i = 0; i < kWord; ++i) {
            bytes.push_back(static_cast<std::byte>(static_cast<std::uint32_t>(word) >> (8 * i) & 0xFF));
        }
    }
    return bytes;
}

void captureValues(CDataAnal& analyser, AnalyserState& state) {
    state.value8 = analyser.GetValue8();
    state.value9 = analyser.GetValue9();
    const std::span<const std::byte> block = analyser.Block(analyser.GetValue11());
    if (state.value8 < 1) return;
    const std::size_t size = std::min(static_cast<std::size_t>(state.value8), block.size());
    state.value11.assign(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(size));
    state.value8 = static_cast<std::int32_t>(size);
}

}  // namespace

AnalyserState CaptureAnalyser(CDataAnal& analyser) {
    AnalyserState state;
    state.mode = analyser.GetMode();
    state.entryBlock = countedWords(analyser.Block(analyser.GetEntryCountRef()));
    state.entries.resize(state.entryBlock.size() - 1);
    const std::size_t asked = std::min(state.entries.size(), kMaxEntries);
    for (std::size_t i = 0; i < asked; ++i) {
        state.entries[i] = analyser.GetEntry(static_cast<std::int16_t>(i));
    }
    state.viewMode = analyser.GetViewMode();
    state.option4 = analyser.GetOption4();
    state.option3 = analyser.GetOption3();
    state.flag5 = analyser.GetFlag5() ? 1 : 0;
    state.flag6 = analyser.GetFlag6() ? 1 : 0;
    state.option7 = analyser.GetOption7();
    captureValues(analyser, state);
    return state;
}

void RestoreAnalyser(CDataAnal& analyser, const AnalyserState& state) {
    analyser.SetViewMode(state.viewMode);
    analyser.SetFlag6(state.flag6 != 0);
    analyser.SetOption3(state.option3);
    analyser.SetFlag5(state.flag5 != 0);
    analyser.SetMode(state.mode);
    analyser.SetOption7(state.option7);
    analyser.SetValues(state.value8, state.value9, analyser.KeepBlock(state.value11));
    analyser.SetEntryCountRef(analyser.KeepBlock(bytesOf(state.entryBlock)));
    const std::size_t given = std::min(state.entries.size(), kMaxEntries);
    for (std::size_t i = 0; i < given; ++i) {
        analyser.SetEntry(static_cast<std::int16_t>(i), state.entries[i]);
    }
    analyser.SetOption4(state.option4);
}

}  // namespace kalyxo
