#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about pictures, videos and molecules.
namespace contentc::say {

inline constexpr Message isOtherKind{
    "this is no {1} file, whatever its name says; save it again as {1}",
    "δεν είναι αρχείο {1}, ό,τι κι αν λέει το όνομά του· αποθήκευσέ το ξανά ως {1}"};
inline constexpr Message saveAsV2000{"save it again as MDL molfile (V2000)",
                                     "αποθήκευσέ το ξανά ως MDL molfile (V2000)"};
inline constexpr Message noCountsLine{
    "no molecule can be read here: the fourth line must tell how many atoms and bonds there are",
    "δεν διαβάζεται μόριο: η τέταρτη γραμμή πρέπει να λέει πόσα άτομα και πόσοι δεσμοί υπάρχουν"};
inline constexpr Message moleculeIsCutShort{
    "the molecule is cut short: it should have {1} atoms and {2} bonds",
    "το μόριο είναι κομμένο: έπρεπε να έχει {1} άτομα και {2} δεσμούς"};

}  // namespace contentc::say
