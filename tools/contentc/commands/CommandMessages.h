#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What the program says of itself and of what it has done.
namespace contentc::say {

inline constexpr Message usage{
    R"(Usage: contentc COMMAND [FOLDER] [OPTION]...

Makes content for Kalyxo out of text files. FOLDER is the current folder when it is left out.

  new FOLDER      makes a folder with a page of each kind, to begin with
  check [FOLDER]  says what is wrong, and writes nothing
  counts [FOLDER] tells how much there is of each kind
  build [FOLDER]  makes the data folder that the program shows
  open [FOLDER]   builds, and shows it in the program
  watch [FOLDER]  the same, and again at each change

  --base BASE       with new: lays the folder over another, or over the program's own content (kalyxo)
  --complete        with check: tells too which topics lack a quiz, school years or a picture, or are too long
  --strict          warnings count as errors
  --output FOLDER   the data folder that is made (the folder 'data' in that of the sources)
  --cache FOLDER    where made pictures and videos are kept (the user's cache folder)
  --images FOLDER   pictures that are made already: the main menu's (*.bmp) and drawings (*.png)
  --media FOLDER    videos that are made already (*.webm)
  --help, --version
)",
    R"(Χρήση: contentc ΕΝΤΟΛΗ [ΦΑΚΕΛΟΣ] [ΕΠΙΛΟΓΗ]...

Φτιάχνει περιεχόμενο για το Kalyxo από αρχεία κειμένου. Χωρίς ΦΑΚΕΛΟ εννοείται αυτός στον οποίο βρίσκεσαι.

  new ΦΑΚΕΛΟΣ      φτιάχνει φάκελο με μία σελίδα από κάθε είδος, για να ξεκινήσεις
  check [ΦΑΚΕΛΟΣ]  λέει τι είναι λάθος και δεν γράφει τίποτε
  counts [ΦΑΚΕΛΟΣ] λέει πόσα υπάρχουν από κάθε είδος
  build [ΦΑΚΕΛΟΣ]  φτιάχνει τον φάκελο δεδομένων που δείχνει το πρόγραμμα
  open [ΦΑΚΕΛΟΣ]   τον φτιάχνει και τον δείχνει στο πρόγραμμα
  watch [ΦΑΚΕΛΟΣ]  το ίδιο, και ξανά σε κάθε αλλαγή

  --base ΒΑΣΗ       με το new: στρώνει τον φάκελο πάνω σε άλλον ή στο περιεχόμενο του προγράμματος (kalyxo)
  --complete        με το check: λέει και ποια θέματα δεν έχουν ερωτήσεις, τάξη ή εικόνα ή είναι πολύ μεγάλα
  --strict          οι προειδοποιήσεις μετρούν ως λάθη
  --output ΦΑΚΕΛΟΣ  ο φάκελος δεδομένων που γίνεται (ο φάκελος «data» μέσα σε αυτόν με τα αρχεία σου)
  --cache ΦΑΚΕΛΟΣ   πού φυλάγονται εικόνες και βίντεο που έγιναν (η κρυφή μνήμη του χρήστη)
  --images ΦΑΚΕΛΟΣ  έτοιμες εικόνες: του κεντρικού μενού (*.bmp) και σχέδια (*.png)
  --media ΦΑΚΕΛΟΣ   έτοιμα βίντεο (*.webm)
  --help, --version
)"};

// Arguments
inline constexpr Message commandIsMissing{"no command; contentc --help tells of them",
                                          "λείπει η εντολή· το contentc --help τις δείχνει"};
inline constexpr Message unknownCommand{"unknown command '{1}'", "άγνωστη εντολή «{1}»"};
inline constexpr Message unknownOption{"unknown option '{1}'", "άγνωστη επιλογή «{1}»"};
inline constexpr Message optionNeedsValue{"behind {1} something is missing", "μετά το {1} κάτι λείπει"};
inline constexpr Message newNeedsFolder{"'new' needs the name of a folder",
                                        "το «new» θέλει το όνομα ενός φακέλου"};
inline constexpr Message argumentTooMuch{"'{1}' is one argument too many", "το «{1}» περισσεύει"};
inline constexpr Message noSuchFolder{"no such folder", "δεν υπάρχει τέτοιος φάκελος"};

// Results
inline constexpr Message allIsRight{"Nothing wrong. Pages: {1}, terms: {2}.",
                                    "Κανένα λάθος. Σελίδες: {1}, όροι: {2}."};
inline constexpr Message areOnlyWarnings{"No mistakes. Warnings: {3}. Pages: {1}, terms: {2}.",
                                         "Κανένα λάθος. Προειδοποιήσεις: {3}. Σελίδες: {1}, όροι: {2}."};
inline constexpr Message isBuilt{"Done. Pages: {1}, terms: {2}, folder: {3}",
                                 "Έτοιμο. Σελίδες: {1}, όροι: {2}, φάκελος: {3}"};
inline constexpr Message thereWereErrors{"Errors: {1}. Warnings: {2}. Nothing was written.",
                                         "Λάθη: {1}. Προειδοποιήσεις: {2}. Δεν γράφτηκε τίποτε."};
inline constexpr Message warningsCount{
    "Warnings: {1}, and they count as errors (--strict). Nothing was written.",
    "Προειδοποιήσεις: {1}, και μετρούν ως λάθη (--strict). Δεν γράφτηκε τίποτε."};
inline constexpr Message makingMedia{"pictures and videos", "εικόνες και βίντεο"};
inline constexpr Message isNotEmpty{"the folder is not empty", "ο φάκελος δεν είναι άδειος"};
inline constexpr Message noStarter{"the files to begin with are not installed",
                                   "τα αρχεία για το ξεκίνημα δεν είναι εγκατεστημένα"};
inline constexpr Message isNew{R"(The folder {1} is ready. What to do next:
  contentc watch {1}     shows it in the program, and again at each change
  then change a page in {1}/pages and save it)",
                               R"(Ο φάκελος {1} είναι έτοιμος. Στη συνέχεια:
  contentc watch {1}     τον δείχνει στο πρόγραμμα, και ξανά σε κάθε αλλαγή
  έπειτα άλλαξε μια σελίδα στον {1}/pages και αποθήκευσέ τη)"};
inline constexpr Message programNotFound{
    "the program kalyxo is not there; install it: sudo apt install kalyxo",
    "το πρόγραμμα kalyxo δεν υπάρχει· εγκατάστησέ το: sudo apt install kalyxo"};
inline constexpr Message isWatching{"Waiting for changes in {1}. Ctrl+C ends.",
                                    "Περιμένω αλλαγές στον {1}. Τέλος με Ctrl+C."};
inline constexpr Message cannotWatch{"changes here cannot be followed",
                                     "οι αλλαγές εδώ δεν παρακολουθούνται"};

}  // namespace contentc::say
