#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about files and folders as such.
namespace contentc::say {

inline constexpr Message mayNotBeRead{"you have no right to read this file",
                                      "δεν έχεις δικαίωμα να διαβάσεις αυτό το αρχείο"};
inline constexpr Message isNoFile{"is a folder or something else, where a file is expected",
                                  "είναι φάκελος ή κάτι άλλο, ενώ εδώ περιμένω αρχείο"};
inline constexpr Message fileIsTooLarge{"larger than {1} MB", "μεγαλύτερο από {1} MB"};
inline constexpr Message keepsChanging{"changes while it is read; try again when it is saved",
                                       "αλλάζει την ώρα που διαβάζεται· δοκίμασε πάλι όταν αποθηκευτεί"};

// Files that are left out
inline constexpr Message fileIsIgnored{
    "ignored: a *{1} file is of no use in the folder '{2}'",
    "δεν χρησιμοποιείται: τα αρχεία *{1} δεν έχουν θέση στον φάκελο «{2}»"};
inline constexpr Message fileWithoutExtensionIsIgnored{
    "ignored: the file's name has no extension",
    "δεν χρησιμοποιείται: το όνομα του αρχείου δεν έχει επέκταση"};
inline constexpr Message folderIsIgnored{"ignored: folders are not looked into here",
                                         "δεν χρησιμοποιείται: οι φάκελοι σε αυτή τη θέση δεν διαβάζονται"};
inline constexpr Message unknownFolderIsIgnored{
    "ignored: content has no folder of this name",
    "δεν χρησιμοποιείται: το περιεχόμενο δεν έχει φάκελο με αυτό το όνομα"};
inline constexpr Message itsPlaceIs{"its place is the folder '{1}'", "η θέση του είναι ο φάκελος «{1}»"};
inline constexpr Message pagesLieInSections{"pages lie in the folder of a section, such as pages/uses",
                                            "οι σελίδες μπαίνουν στον φάκελο μιας ενότητας, π.χ. pages/uses"};
inline constexpr Message saveAs{"save it as {1}", "αποθήκευσέ το ως {1}"};

// Files of the data folder
inline constexpr Message nameIsNotPlain{"'{1}' has characters other than a-z, 0-9, '.', '-' and '_'",
                                        "το «{1}» έχει και άλλους χαρακτήρες από a-z, 0-9, «.», «-» και «_»"};
inline constexpr Message fileIsMadeAlready{"'{1}' is already made from {2}",
                                           "το «{1}» γίνεται ήδη από το {2}"};

// Layers
inline constexpr Message unknownLayerField{"unknown name '{1}'", "άγνωστο όνομα «{1}»"};
inline constexpr Message notALayerLine{"not a line 'base: folder'", "δεν είναι γραμμή «βάση: φάκελος»"};
inline constexpr Message noSuchLayer{"there is no folder '{1}'", "δεν υπάρχει φάκελος «{1}»"};
inline constexpr Message noInstalledContent{"the content of the program is not installed",
                                            "το περιεχόμενο του προγράμματος δεν είναι εγκατεστημένο"};
inline constexpr Message layersGoRound{
    "'{1}' is built on this folder already, so neither could be read first",
    "ο φάκελος «{1}» βασίζεται ήδη σε αυτόν εδώ, άρα κανένας δεν μπορεί να είναι ο πρώτος"};

}  // namespace contentc::say
