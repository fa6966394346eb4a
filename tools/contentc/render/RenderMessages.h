#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about making pictures and films.
namespace contentc::say {

inline constexpr Message programIsMissing{
    "the program '{1}' is not there that makes it; install it: sudo apt install {2}",
    "λείπει το πρόγραμμα «{1}» που το φτιάχνει· εγκατάστησέ το: sudo apt install {2}"};
inline constexpr Message drawingIsFaulty{"this drawing cannot be read: {1}",
                                         "αυτό το σχέδιο δεν διαβάζεται: {1}"};
inline constexpr Message filmIsFaulty{"this film cannot be made: {1}", "αυτή η ταινία δεν γίνεται: {1}"};
inline constexpr Message videoIsFaulty{"this video cannot be read: {1}",
                                       "αυτό το βίντεο δεν διαβάζεται: {1}"};
inline constexpr Message madeFilesFolderFails{"nothing can be written into this folder",
                                              "δεν γράφεται τίποτε σε αυτόν τον φάκελο"};
inline constexpr Message unknownReason{"for an unknown reason", "για άγνωστο λόγο"};

}  // namespace contentc::say
