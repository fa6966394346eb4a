#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about how pages, sections and terms go together.
namespace contentc::say {

inline constexpr Message unknownSection{"no section is named '{1}'", "καμία ενότητα δεν λέγεται «{1}»"};

}  // namespace contentc::say
