#include "src/resources/StringTable.h"

#include <array>

#include "platform/text/GreekLiteral.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform::literals;
using platform::StringResource;

namespace {

constexpr std::array kStrings = {
    StringResource{IDS_OLE_INIT_FAILED,
                   "OLE initialization failed.  Make sure that the OLE libraries are the correct version."},
    StringResource{IDS_BOOKMARK_PERIODIC_TABLE, "Periodic Table"},
    StringResource{IDS_BOOKMARK_DATA_ANALYSER, "Data Analyser"},
    StringResource{IDS_SETTINGS_KEY, R"(Software\Orvane\Kalyxo Greek\)"},
    StringResource{IDS_APP_TITLE, "Kalyxo"},
    StringResource{IDS_BOOKMARKS_NOT_CREATED, "Δεν είναι δυνατή η εγγραφή του αρχείου σελιδοδείκτη: "_gr},
    StringResource{IDS_BOOKMARKS_NOT_WRITTEN,
                   "Παρουσιάστηκε πρόβλημα κατά την εγγραφή του αρχείου σελιδοδεικτών – πιθανή αιτία ο μη "
                   "επαρκής χώρος στο δίσκο"_gr},
    StringResource{IDS_BOOKMARK_NAME_TAKEN, "Υπάρχει ήδη σελιδοδείκτης με το ίδιο όνομα"_gr},
    StringResource{IDS_BOOKMARK_RENAME, "Μετονομασία σελιδοδείκτη"_gr},
    StringResource{IDS_BOOKMARK_ADD, "Προσθήκη σελιδοδείκτη"_gr},
    StringResource{IDS_BOOKMARK_STRUCT, "Δομές"_gr},
    StringResource{IDS_BOOKMARK_REACT, "Αλλαγή των υλικών"_gr},
    StringResource{IDS_BOOKMARK_USES, "Εφαρμογές της χημείας"_gr},
    StringResource{IDS_BOOKMARK_HISTORY, "Άνθρωποι και ιστορία"_gr},
    StringResource{IDS_BOOKMARK_SOURCE, "Πηγές και υλικά"_gr},
    StringResource{IDS_BOOKMARK_ELEMCOMP, "Ενώσεις και στοιχεία"_gr},
    StringResource{IDS_REGISTRY_UNREADABLE,
                   "Δεν είναι δυνατή η λήψη πληροφοριών από το μητρώο. "
                   "Παρακαλώ κάντε νέα εγκατάσταση και δοκιμάστε ξανά."_gr},
    StringResource{IDS_NO_BROWSER, "Δεν έχει γίνει σωστά η εγκατάσταση του Internet Explorer"_gr},
    StringResource{IDS_BOOKMARK_CONCEPT, "Έννοιες"_gr},
    StringResource{IDS_COMPONENT_OUTDATED,
                   ".OCX έχει λήξει η προθεσμία χρήσης και ίσως να δημιουργήσει προβλήματα εφόσον εκτελείται."
                   "\r\n\r\nΠαρακαλώ κάντε νέα εγκατάσταση και ξαναπροσπαθήστε."_gr},
    StringResource{
        IDS_OLDER_VERSION,
        "Μία παλαιότερη έκδοση του Kalyxo είναι εγκατεστημένη στον υπολογιστή σας. Θέλετε να "
        "αντικατασταθούν τα παλαιά δεδομένα από τα νέα για να μπορέσετε να εκτελέσετε αυτή την έκδοση του "
        "λογισμικού;\n\nΣημείωση: Η ενέργεια αυτή μπορεί να οδηγήσει στην παύση λειτουργίας της υπάρχουσας "
        "έκδοσης. Μπορείτε να καταργήσετε την τρέχουσα έκδοση του λογισμικού (απεγκατάσταση) και να "
        "εκτελέσετε ξανά το πρόγραμμα."_gr},
    StringResource{IDS_NO_PERIODIC_TABLE, "Δεν είναι δυνατό να φορτωθεί ο Περιοδικός Πίνακας."_gr},
    StringResource{IDS_NO_PRINTER,
                   "Παρακαλώ ρυθμίστε τον προεπιλεγμένο σας εκτυπωτή και ξαναπροσπαθήστε."_gr},
    StringResource{IDS_RUN_AGAIN,
                   "Έχουν κατοχυρωθεί νέα συστατικά. Παρακαλώ εκτελέστε ξανά το πρόγραμμα για την ολοκλήρωση "
                   "της διαδικασίας."_gr},
    StringResource{IDS_MAIN_MENU, "Κεντρικό μενού"_gr},
    StringResource{IDS_SECTIONS, "Ενότητες"_gr},
    StringResource{IDS_PREPARING_PAGE, "Ετοιμάζεται η σελίδα…"_gr},
    StringResource{IDS_PAGE_NOT_OPENED, "ERROR: Can't open "},
    StringResource{IDS_PAGE_NOT_CREATED, "Unable to create temporary file"},
    StringResource{IDS_NO_ELEMENT_INDEX, "Can't open ptable.ndx"},
    StringResource{IDS_OUT_OF_MEMORY, "Out of memory"},
    StringResource{IDS_PICTURE_DAMAGED, "BMP file error"},
    StringResource{IDS_BOOKMARKS_DAMAGED,
                   "Το αρχείο σελιδοδεικτών είναι κατεστραμμένο. Οι υπάρχοντες σελιδοδείκτες θα χαθούν."_gr},
    StringResource{IDS_BOOKMARK_INTRODUCTION, "Introduction"},
    StringResource{IDS_INTERNAL_ERROR, "Internal error!"},
};

}  // namespace

std::span<const StringResource> StringTable() { return kStrings; }

}  // namespace kalyxo
