#include "tools/contentc/markdown/Keyword.h"

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/NameKey.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {
namespace {

/// Whether the text begins with the keyword and a word ends there.
bool beginsWith(std::string_view text, std::string_view keyword) {
    const std::string_view begin = text.substr(0, keyword.size());
    const std::string_view rest = text.substr(begin.size());
    if (!rest.empty() && rest.front() != ' ') return false;
    return nameKey(platform::fromUtf8(begin)) == nameKey(platform::fromUtf8(keyword));
}

}  // namespace

KeywordFound findKeyword(std::span<const Keyword> keywords, std::string_view text) {
    KeywordFound best{keywords.size(), text};
    std::size_t longest = 0;
    for (std::size_t i = 0; i < keywords.size(); ++i) {
        for (const std::string_view name : {keywords[i].greek, keywords[i].english}) {
            if (name.size() <= longest || !beginsWith(text, name)) continue;
            longest = name.size();
            best = {i, trimmed(text.substr(name.size()))};
        }
    }
    return best;
}

}  // namespace contentc
