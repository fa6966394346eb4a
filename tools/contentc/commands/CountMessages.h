#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is counted.
namespace contentc::say {

inline constexpr Message topicsHeading{"Topics", "Θέματα"};
inline constexpr Message entriesHeading{"Entries by list", "Λήμματα ανά κατάλογο"};
inline constexpr Message elementsHeading{"Pages of elements", "Σελίδες στοιχείων"};
inline constexpr Message withOwnText{"with a text of their own", "με δικό τους κείμενο"};
inline constexpr Message madeFromData{"made from the data", "από τα δεδομένα"};
inline constexpr Message otherHeading{"Other", "Άλλα"};
inline constexpr Message termsCounted{"terms of the glossary", "όροι του γλωσσαρίου"};
inline constexpr Message moleculesCounted{"molecules", "μόρια"};
inline constexpr Message filmsCounted{"films", "βίντεο"};
inline constexpr Message drawingsCounted{"drawings", "σχέδια"};
inline constexpr Message picturesCounted{"other pictures", "άλλες εικόνες"};
inline constexpr Message dataSetsCounted{"data sets", "πίνακες δεδομένων"};
inline constexpr Message toolsHeading{"Tools on pages", "Εργαλεία σε σελίδες"};
inline constexpr Message countsTotal{"all together", "σύνολο"};

}  // namespace contentc::say
