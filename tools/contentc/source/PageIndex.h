#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/PageSource.h"

namespace contentc {

/// Finds pages by number or title. The pages must stay where they are.
class PageIndex {
  public:
    explicit PageIndex(const std::vector<PageSource>& pages);

    struct Found {
        /// Null when there is no such page.
        const PageSource* page = nullptr;
        /// Several pages have this title, and none of them is preferred.
        bool isAmbiguous = false;
    };

    /// The page with a number or title in code page 1253. Of several with one title those of the section that
    /// `from` belongs to are preferred, and of these the topic.
    Found find(std::string_view name, const PageSource& from) const;

    /// The titles of all pages, in UTF-8.
    std::vector<std::string> titles() const;

  private:
    std::map<std::int32_t, const PageSource*> byNumber_;
    std::map<std::string, std::vector<const PageSource*>, std::less<>> byTitle_;
};

/// Finds the topics of entries, which are written as numbers or titles, and reports those that the section
/// does not have.
void resolveTopics(std::vector<PageSource>& pages, Diagnostics& diagnostics);

}  // namespace contentc
