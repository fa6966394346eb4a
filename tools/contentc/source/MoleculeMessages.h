#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about the layout of molecule pages.
namespace contentc::say {

inline constexpr Message moleculeEmbedLine{
    "line {1} of the finished molecule page must hold the '<EMBED ' of the molecule with the sizes 340 and "
    "290",
    "η γραμμή {1} της έτοιμης σελίδας μορίου πρέπει να έχει το «<EMBED » του μορίου με διαστάσεις 340 και "
    "290"};
inline constexpr Message moleculeSettingLine{
    "line {1} of the finished molecule page must end in its only 'true'",
    "η γραμμή {1} της έτοιμης σελίδας μορίου πρέπει να τελειώνει με το μοναδικό της «true»"};
inline constexpr Message noEndOfMoleculeView{
    "no line after line 15 of the finished page begins with '</TD>'",
    "μετά τη γραμμή 15 της έτοιμης σελίδας καμία γραμμή δεν αρχίζει με «</TD>»"};
inline constexpr Message moleculeFileNotFirst{
    "the molecule file must be the first text in quotes on its line",
    "το αρχείο του μορίου πρέπει να είναι το πρώτο κείμενο σε εισαγωγικά στη γραμμή του"};

}  // namespace contentc::say
