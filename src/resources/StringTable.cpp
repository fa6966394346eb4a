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
    StringResource{IDS_READING_FOLDERS, "Διαβάζονται οι φάκελοι…"_gr},
    StringResource{IDS_LOCATE_CONTENT, "Please locate the Kalyxo CD-ROM"},
    StringResource{IDS_LOCATE_BOOKMARKS, "Select folder to store your bookmarks"},
    StringResource{IDS_REMOVABLE_DRIVE, "Removeable Media"},
    StringResource{IDS_FIXED_DRIVE, "Local Disk"},
    StringResource{IDS_NETWORK_DRIVE, "Network drive"},
    StringResource{IDS_CD_DRIVE, "Compact Disk"},
    StringResource{IDS_RAM_DRIVE, "RAM Disk"},
    StringResource{IDS_SCREEN_SHOWS_ONLY, "Η οθόνη σας απεικονίζει μόνο "_gr},
    StringResource{IDS_SO_MANY_COLOURS,
                   " χρώματα.\r\nΓια καλύτερα αποτελέσματα προτείνεται να ρυθμίσετε την οθόνη σας ώστε να "
                   "απεικονίζει χιλιάδες ή εκατομμύρια χρώματα."_gr},
    StringResource{IDS_PREPARING_MACHINE, "Ετοιμάζεται ο φάκελος του Kalyxo…"_gr},
    StringResource{IDS_OPENING_BOOKMARKS, "Ανοίγουν οι σελιδοδείκτες…"_gr},
    StringResource{IDS_BOOKMARK_GOTO, "Μετάβαση σε σελιδοδείκτη"_gr},
    StringResource{IDS_BOOKMARK_DELETE, "Διαγραφή σελιδοδείκτη"_gr},
    StringResource{IDS_BOOKMARK_DELETE_QUESTION,
                   "Είστε βέβαιοι ότι θέλετε να διαγράψετε το σελιδοδείκτη;"_gr},
    StringResource{IDS_FOLDER_DELETE, "Διαγραφή φακέλου"_gr},
    StringResource{IDS_FOLDER_DELETE_QUESTION,
                   "Είστε βέβαιοι ότι θέλετε να διαγράψετε ένα φάκελο και όλα του τα περιεχόμενα;"_gr},
    StringResource{IDS_LAST_FOLDER_STAYS, "Δεν είναι δυνατή η διαγραφή του τελευταίου φακέλου."_gr},
    StringResource{IDS_FOLDER_NEW, "Νέος φάκελος"_gr},
    StringResource{IDS_FOLDER_RENAME, "Μετονομασία φακέλου"_gr},
    StringResource{IDS_FOLDER_NAME_TAKEN, "A folder with this name already exists"},
    StringResource{IDS_FOLDER_NAME_TAKEN_CAPTION, "Rename Folder"},
    StringResource{IDS_FOLDER_DEFAULT_NAME, "Οι σελιδοδείκτες μου"_gr},
    StringResource{IDS_SPLITTER, "Διαχωριστής"_gr},
    StringResource{IDS_READING_WORDS, "Διαβάζεται το ευρετήριο των λέξεων…"_gr},
    StringResource{IDS_SEARCHING_WORD, "Αναζητείται η λέξη…"_gr},
    StringResource{IDS_TOO_MANY_FIRST_LETTERS, "Too many PR1 recs"},
    StringResource{IDS_COLUMN_NAME, "Ονομασία"_gr},
    StringResource{IDS_COLUMN_TOPIC, "Θέμα"_gr},
    StringResource{IDS_COLUMN_SUBGROUP, "Υποομάδα"_gr},
    StringResource{IDS_NO_BROWSE_SELECTION, "Browser selection component not installed correctly"},
    StringResource{IDS_NO_DATA_ANALYSER, "Data Analyser component not installed correctly"},
    StringResource{IDS_NO_MOLECULE_CONTROLLER, "Molecule Controller component not installed correctly"},
    StringResource{IDS_NO_MOLECULE_ZOOM, "Molecule Zoom component not installed correctly"},
    StringResource{IDS_START_NOT_MADE,
                   "Το Kalyxo δεν μπορεί να ξεκινήσει, γιατί δεν μπορεί να δημιουργήσει:\r\n\r\n%s\r\n\r\n"
                   "Ελέγξτε ότι έχετε δικαίωμα εγγραφής εκεί και ότι υπάρχει ελεύθερος χώρος στον δίσκο, και "
                   "ξεκινήστε το πάλι."_gr},
    StringResource{IDS_START_NOT_READ,
                   "Το Kalyxo δεν μπορεί να ξεκινήσει, γιατί δεν μπορεί να διαβάσει:\r\n\r\n%s\r\n\r\n"
                   "Ελέγξτε ότι υπάρχει και ότι έχετε δικαίωμα ανάγνωσης, και ξεκινήστε το πάλι."_gr},
    StringResource{IDS_START_DAMAGED,
                   "Το Kalyxo δεν μπορεί να ξεκινήσει, γιατί αυτό το αρχείο είναι κατεστραμμένο:\r\n\r\n%s"
                   "\r\n\r\nΔιορθώστε ή διαγράψτε το αρχείο, και ξεκινήστε το πάλι."_gr},
    StringResource{
        IDS_START_NO_SANDBOX,
        "Το Kalyxo δεν ξεκινά, γιατί αυτός ο υπολογιστής δεν του επιτρέπει να απομονώνει τις "
        "σελίδες από το υπόλοιπο σύστημα.\r\n\r\nΟ διαχειριστής του υπολογιστή πρέπει να επιτρέψει "
        "τα «user namespaces» στο Kalyxo. Το πώς το γράφει η εντολή «man kalyxo»."_gr},
    StringResource{IDS_NO_SHARED_CONTENT,
                   "Ο φάκελος περιεχομένου που ορίζει το αρχείο /etc/kalyxo.conf δεν υπάρχει ή δεν έχει "
                   "αρχική σελίδα (a.htm):\r\n\r\n%s\r\n\r\nΘα εμφανιστεί το περιεχόμενο που εγκαταστάθηκε "
                   "μαζί με το πρόγραμμα. Ενημερώστε τον διαχειριστή του υπολογιστή."_gr},
};

constexpr bool idsDiffer() {
    for (std::size_t i = 0; i < kStrings.size(); ++i) {
        for (std::size_t other = 0; other < i; ++other) {
            if (kStrings[i].id == kStrings[other].id) return false;
        }
    }
    return true;
}
static_assert(idsDiffer(), "two texts have the same id, and only the first would be found");

}  // namespace

std::span<const StringResource> StringTable() { return kStrings; }

}  // namespace kalyxo
