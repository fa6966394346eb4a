#pragma once

#include <string>

#include "controls/elements/Element.h"

namespace contentc {

/// What the author tells of a family of elements, in UTF-8.
struct FamilyText {
    std::string topic;  ///< title or number of the topic that its elements belong to
    std::string uses;   ///< what its elements are used for: a sentence of Markdown
};

/// The source of a page made from the data, for an element that has no page of its own: a head with title,
/// topic and words for the search, and in Markdown a lead sentence, the card, uses and isotopes. UTF-8.
std::string elementPageSource(const controls::Element& element, const FamilyText& family);

}  // namespace contentc
