#include "tools/contentc/source/NearestName.h"

#include <algorithm>
#include <utility>

#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"

namespace contentc {
namespace {

std::string folded(std::string_view utf8) { return platform::fold(platform::fromUtf8(utf8)); }

/// How many letters have to be changed, added, removed or exchanged with their neighbours.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> beforeLast(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast = std::exchange(last, std::exchange(row, std::move(beforeLast)));
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, changed});
            const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (exchanged) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row.back();
}

}  // namespace

std::optional<std::string> nearestName(std::string_view wanted, const std::vector<std::string>& names) {
    const std::string word = folded(wanted);
    // One wrong letter in three, and one in a very short name.
    std::size_t limit = std::max<std::size_t>(1, word.size() / 3) + 1;
    const std::string* nearest = nullptr;
    for (const std::string& name : names) {
        const std::string candidate = folded(name);
        const std::size_t longer = std::max(candidate.size(), word.size());
        if (longer - std::min(candidate.size(), word.size()) >= limit) continue;
        const std::size_t found = distance(word, candidate);
        if (found >= limit || found >= longer) continue;
        limit = found;
        nearest = &name;
    }
    return nearest ? std::optional(*nearest) : std::nullopt;
}

}  // namespace contentc
