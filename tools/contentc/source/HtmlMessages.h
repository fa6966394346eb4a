#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about HTML.
namespace contentc::say {

inline constexpr Message writeWhereItEnds{"write '{1}' where it ends", "γράψε «{1}» εκεί όπου τελειώνει"};
inline constexpr Message tagIsOpen{"{1} is not closed", "το {1} δεν κλείνει"};
inline constexpr Message tagClosesNothing{"{1} closes nothing", "το {1} δεν κλείνει τίποτε"};
inline constexpr Message tagClosesOther{"{1} does not close {2}", "το {1} δεν κλείνει το {2}"};

}  // namespace contentc::say
