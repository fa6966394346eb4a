#include "src/bookmarks/BookmarkNames.h"

#include <array>

#include "platform/base/Resources.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

namespace {

struct Prefix {
    std::int32_t nameCode;
    platform::UINT string;
};

constexpr std::array kPrefixes = {
    Prefix{1, IDS_BOOKMARK_REACT},
    Prefix{2, IDS_BOOKMARK_STRUCT},
    Prefix{3, IDS_BOOKMARK_SOURCE},
    Prefix{4, IDS_BOOKMARK_USES},
    Prefix{5, IDS_BOOKMARK_HISTORY},
    Prefix{6, IDS_BOOKMARK_ELEMCOMP},
    Prefix{7, IDS_BOOKMARK_CONCEPT},
    Prefix{kPeriodicTableName, IDS_BOOKMARK_PERIODIC_TABLE},
    Prefix{kDataAnalyserName, IDS_BOOKMARK_DATA_ANALYSER},
};

}  // namespace

std::string ProposedBookmarkName(std::int32_t nameCode, std::string_view title) {
    std::string name;
    for (const Prefix& prefix : kPrefixes) {
        if (prefix.nameCode == nameCode) name = platform::LoadString(prefix.string);
    }
    return name.append(" - ").append(title);
}

}  // namespace kalyxo
