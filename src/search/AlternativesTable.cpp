#include "src/search/AlternativesTable.h"

#include <cstdint>
#include <unordered_set>

#include "formats/WordRecords.h"
#include "src/search/IndexFileLimit.h"

namespace kalyxo {

namespace {

/// Calls `take` with each record until `take` returns false.
template <typename Take>
void walk(std::string_view image, Take take) {
    while (image.size() >= formats::alternativeRecordSize && take(image))
        image.remove_prefix(formats::alternativeRecordSize);
}

constexpr std::int32_t kNoGroup = -1;

std::int32_t groupOf(std::string_view word, std::string_view image) {
    std::int32_t group = kNoGroup;
    walk(image, [&](std::string_view record) {
        if (formats::alternativeWord(record) != word) return true;
        group = formats::alternativeGroup(record);
        return false;
    });
    return group;
}

}  // namespace

void AlternativesTable::Load(const platform::FileSystem& files, std::string_view dataFolder,
                             const platform::ProgressStep& step) {
    m_image =
        files.readAll(std::string(dataFolder).append(formats::alternativesFile), kMaxIndexFileBytes, step)
            .value_or("");
}

std::vector<std::string> AlternativesTable::FormsOf(std::string_view word) const {
    std::vector<std::string> forms{std::string(word)};
    std::unordered_set<std::string_view> known{word};
    const std::int32_t group = groupOf(word, m_image);
    walk(m_image, [&](std::string_view record) {
        if (formats::alternativeGroup(record) == group) {
            const std::string_view form = formats::alternativeWord(record);
            if (known.insert(form).second) forms.emplace_back(form);
        }
        return true;
    });
    return forms;
}

}  // namespace kalyxo
