#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about data sets, lists of words and of elements.
namespace contentc::say {

inline constexpr Message wrongDataField{"no field with a right value", "δεν είναι πεδίο με σωστή τιμή"};
inline constexpr Message dataHeadIsIncomplete{
    "the head needs 'number', 'title', a first column of words, a column of numbers, and a 'graph' of such",
    "η κεφαλίδα χρειάζεται «number», «title», πρώτη στήλη με λέξεις, μία στήλη με αριθμούς και «graph» από "
    "τέτοιες"};
inline constexpr Message wrongCellCount{"the row of '{1}' has not as many cells as there are columns",
                                        "η γραμμή «{1}» δεν έχει τόσα κελιά όσες είναι οι στήλες"};
inline constexpr Message wordsForNumber{"the row of '{1}' has words where a number belongs",
                                        "η γραμμή «{1}» έχει λέξεις εκεί που πρέπει να είναι αριθμός"};
inline constexpr Message rowTooMany{"the row of '{1}' is one too many", "η γραμμή «{1}» περισσεύει"};
inline constexpr Message rowIsCutShort{"the row of '{1}' is cut short", "η γραμμή «{1}» είναι κομμένη"};
inline constexpr Message dataNumberIsTaken{"another data set has the number {1} too",
                                           "και άλλος πίνακας δεδομένων έχει τον αριθμό {1}"};
inline constexpr Message notAFamilyLine{"not a line 'family | topic | uses'",
                                        "δεν είναι γραμμή «οικογένεια | θέμα | χρήσεις»"};
inline constexpr Message noFamily{"no family of elements is named '{1}'",
                                  "καμία οικογένεια στοιχείων δεν λέγεται «{1}»"};
inline constexpr Message noElement{"no element has the symbol or name '{1}'",
                                   "κανένα στοιχείο δεν έχει σύμβολο ή όνομα «{1}»"};
inline constexpr Message noCompound{"'{1}' is neither a compound of the data set nor a formula",
                                    "το «{1}» δεν είναι ούτε ένωση του πίνακα δεδομένων ούτε τύπος"};
inline constexpr Message wordStandsTwice{"'{1}' stands twice", "η λέξη «{1}» υπάρχει δύο φορές"};

}  // namespace contentc::say
