#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about the characters of a text.
namespace contentc::say {

inline constexpr Message notUtf8{"not UTF-8", "δεν είναι UTF-8"};
inline constexpr Message saveAsUtf8{"save the file as UTF-8", "αποθήκευσε το αρχείο ως UTF-8"};
inline constexpr Message controlCharacter{"control character {1}", "χαρακτήρας ελέγχου {1}"};
inline constexpr Message notInCodePage{"not in code page 1253: '{1}' ({2})",
                                       "ο χαρακτήρας «{1}» ({2}) δεν υπάρχει στην κωδικοσελίδα 1253"};
inline constexpr Message leaveOut{"leave it out", "παράλειψέ τον"};

}  // namespace contentc::say
