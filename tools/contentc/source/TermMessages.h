#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about terms in files of their own.
namespace contentc::say {

inline constexpr Message wrongTermKey{"glossary key '{1}' is not 8 characters of a-z and 0-9",
                                      "το κλειδί «{1}» δεν είναι 8 χαρακτήρες a-z και 0-9"};
inline constexpr Message firstLineIsTerm{"the first line must be the term",
                                         "η πρώτη γραμμή πρέπει να είναι ο όρος"};

}  // namespace contentc::say
