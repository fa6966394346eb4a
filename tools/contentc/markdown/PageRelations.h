#pragma once

#include <map>
#include <vector>

#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/PageIndex.h"

namespace contentc {

/// The pages to which a page leads at its foot.
struct PageRelation {
    /// What it builds on, what builds on it, and what else is related.
    std::vector<const PageSource*> before, after, see;
    /// The neighbours in the order of topics, of a topic's entries, or of the elements. Null at the ends.
    const PageSource* previous = nullptr;
    const PageSource* next = nullptr;
};

/// The relations between all pages. The content must stay where it is.
class PageRelations {
  public:
    /// Pages that do not exist are reported.
    PageRelations(const Content& content, const PageIndex& pages, Diagnostics& diagnostics);

    const PageRelation& of(const PageSource& page) const;

  private:
    void addNamed(const Content& content, const PageIndex& pages, Diagnostics& diagnostics);
    void addSequences(const Content& content);
    void addSequence(const std::vector<const PageSource*>& pages);

    std::map<const PageSource*, PageRelation> relations_;
};

/// Whether the page is that of an element.
bool isElementPage(const PageSource& page);

}  // namespace contentc
