#include "platform/printing/PrintDialogTexts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace platform {

namespace {

struct Text {
    std::string_view source;
    std::string_view greek;
};

// The context is ignored: each of these texts means the same wherever it appears.
constexpr auto sorted = [](auto texts) {
    std::ranges::sort(texts, {}, &Text::source);
    return texts;
};

constexpr auto texts = sorted(std::to_array<Text>({
    // The dialog.
    {"Print", "Εκτύπωση"},
    {"&Print", "&Εκτύπωση"},
    {"&Options >>", "Επι&λογές >>"},
    {"&Options <<", "Επι&λογές <<"},
    {"Cancel", "Ακύρωση"},
    {"Printer", "Εκτυπωτής"},
    {"&Name:", "Ό&νομα:"},
    {"P&roperties", "Ι&διότητες"},
    {"Preview", "Προεπισκόπηση"},
    {"Location:", "Θέση:"},
    {"Type:", "Τύπος:"},
    {"Output &file:", "&Αρχείο:"},
    {"Print to File (PDF)", "Εκτύπωση σε αρχείο (PDF)"},
    {"Print To File ...", "Εκτύπωση σε αρχείο"},
    {"Local file", "Τοπικό αρχείο"},
    {"Write PDF file", "Αρχείο PDF"},
    // What is printed.
    {"Copies", "Αντίγραφα"},
    {"Copies:", "Αντίγραφα:"},
    {"Collate", "Συρραφή"},
    {"Reverse", "Αντίστροφα"},
    {"Print range", "Περιοχή εκτύπωσης"},
    {"Print all", "Όλες οι σελίδες"},
    {"Pages from", "Σελίδες από"},
    {"to", "έως"},
    {"Current Page", "Τρέχουσα σελίδα"},
    {"Selection", "Επιλογή"},
    {"Pages", "Σελίδες"},
    {"Page Set:", "Ποιες σελίδες:"},
    {"All Pages", "Όλες"},
    {"Odd Pages", "Μονές"},
    {"Even Pages", "Ζυγές"},
    {"Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a "
     "hyphen. "
     "E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Δώστε σελίδες ή περιοχές χωρισμένες με κόμμα. Μια περιοχή γράφεται με δύο αριθμούς και παύλα. Π.χ. με "
     "3,5-7,9 "
     "τυπώνονται οι σελίδες 3, 5, 6, 7 και 9."},
    // How.
    {"Options", "Επιλογές"},
    {"Output Settings", "Ρυθμίσεις"},
    {"Double Sided Printing", "Εκτύπωση δύο όψεων"},
    {"Off", "Όχι"},
    {"Long side binding", "Δέσιμο στη μακριά πλευρά"},
    {"Short side binding", "Δέσιμο στη στενή πλευρά"},
    {"Color Mode", "Χρώμα"},
    {"Color", "Έγχρωμα"},
    {"Grayscale", "Αποχρώσεις του γκρι"},
    // The printer's properties.
    {"Printer Properties", "Ιδιότητες εκτυπωτή"},
    {"Job Options", "Επιλογές εργασίας"},
    {"Page", "Σελίδα"},
    {"Advanced", "Για προχωρημένους"},
    {"Paper", "Χαρτί"},
    {"Page size:", "Μέγεθος:"},
    {"Custom", "Άλλο"},
    {"Width:", "Πλάτος:"},
    {"Height:", "Ύψος:"},
    {"Paper source:", "Τροφοδοσία:"},
    {"Orientation", "Προσανατολισμός"},
    {"Portrait", "Κατακόρυφα"},
    {"Landscape", "Οριζόντια"},
    {"Reverse landscape", "Οριζόντια, ανάποδα"},
    {"Reverse portrait", "Κατακόρυφα, ανάποδα"},
    {"Margins", "Περιθώρια"},
    {"top margin", "πάνω περιθώριο"},
    {"left margin", "αριστερό περιθώριο"},
    {"right margin", "δεξί περιθώριο"},
    {"bottom margin", "κάτω περιθώριο"},
    {"Millimeters (mm)", "Χιλιοστά (mm)"},
    {"Inches (in)", "Ίντσες (in)"},
    {"Points (pt)", "Στιγμές (pt)"},
    {"Page Layout", "Διάταξη σελίδων"},
    {"Page order:", "Σειρά σελίδων:"},
    {"Pages per sheet:", "Σελίδες ανά φύλλο:"},
    {"Left to Right, Top to Bottom", "Από αριστερά, από πάνω"},
    {"Left to Right, Bottom to Top", "Από αριστερά, από κάτω"},
    {"Right to Left, Bottom to Top", "Από δεξιά, από κάτω"},
    {"Right to Left, Top to Bottom", "Από δεξιά, από πάνω"},
    {"Bottom to Top, Left to Right", "Από κάτω, από αριστερά"},
    {"Bottom to Top, Right to Left", "Από κάτω, από δεξιά"},
    {"Top to Bottom, Left to Right", "Από πάνω, από αριστερά"},
    {"Top to Bottom, Right to Left", "Από πάνω, από δεξιά"},
    // The printer's queue.
    {"Job", "Εργασία"},
    {"Job Control", "Έλεγχος εργασίας"},
    {"Job priority:", "Προτεραιότητα:"},
    {"Scheduled printing:", "Ώρα εκτύπωσης:"},
    {"Print Immediately", "Αμέσως"},
    {"Hold Indefinitely", "Με εντολή του διαχειριστή"},
    {"Day (06:00 to 17:59)", "Ημέρα (06:00 έως 17:59)"},
    {"Night (18:00 to 05:59)", "Νύχτα (18:00 έως 05:59)"},
    {"Second Shift (16:00 to 23:59)", "Δεύτερη βάρδια (16:00 έως 23:59)"},
    {"Third Shift (00:00 to 07:59)", "Τρίτη βάρδια (00:00 έως 07:59)"},
    {"Weekend (Saturday to Sunday)", "Σαββατοκύριακο"},
    {"Specific Time", "Ορισμένη ώρα"},
    {"Billing information:", "Στοιχεία χρέωσης:"},
    {"Banner Pages", "Σελίδες τίτλου"},
    {"Start:", "Αρχή:"},
    {"End:", "Τέλος:"},
    {"None", "Καμία"},
    {"Standard", "Συνήθης"},
    {"Unclassified", "Αδιαβάθμητο"},
    {"Confidential", "Εμπιστευτικό"},
    {"Classified", "Διαβαθμισμένο"},
    {"Secret", "Απόρρητο"},
    {"Top Secret", "Άκρως απόρρητο"},
    // What it objects to.
    {"%1 is a directory.\nPlease choose a different file name.",
     "%1 είναι φάκελος.\nΕπιλέξτε άλλο όνομα αρχείου."},
    {"File %1 is not writable.\nPlease choose a different file name.",
     "Δεν είναι δυνατή η εγγραφή του αρχείου %1.\nΕπιλέξτε άλλο όνομα αρχείου."},
    {"%1 already exists.\nDo you want to overwrite it?",
     "Το αρχείο %1 υπάρχει ήδη.\nΘέλετε να αντικατασταθεί;"},
    {"Invalid Pages Definition", "Λάθος σελίδες"},
    {"%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define "
     "ranges "
     "and make sure ranges do not intersect with each other.",
     "Το %1 δεν είναι σωστό. Χωρίστε σελίδες και περιοχές με «,», γράψτε περιοχές με «-» και προσέξτε να μην "
     "επικαλύπτονται."},
    {"Options 'Pages Per Sheet' and 'Page Set' cannot be used together.\nPlease turn one of those options "
     "off.",
     "Οι επιλογές «Σελίδες ανά φύλλο» και «Ποιες σελίδες» δεν χρησιμοποιούνται μαζί.\nΑφήστε μία από τις "
     "δύο."},
    {"Duplex Settings Conflicts", "Εκτύπωση δύο όψεων"},
    {"There are conflicts in duplex settings. Do you want to fix them?",
     "Οι ρυθμίσεις για δύο όψεις δεν ταιριάζουν μεταξύ τους. Θέλετε να τις διορθώσετε;"},
    {"Page Setup Conflicts", "Διάταξη σελίδας"},
    {"There are conflicts in page setup options. Do you want to fix them?",
     "Οι επιλογές της σελίδας δεν ταιριάζουν μεταξύ τους. Θέλετε να τις διορθώσετε;"},
    {"Advanced Option Conflicts", "Επιλογές για προχωρημένους"},
    {"There are conflicts in some advanced options. Do you want to fix them?",
     "Μερικές επιλογές για προχωρημένους δεν ταιριάζουν μεταξύ τους. Θέλετε να τις διορθώσετε;"},
    {"There are conflicts in some options. Please fix them.",
     "Μερικές επιλογές δεν ταιριάζουν μεταξύ τους. Διορθώστε τις."},
    {"&Yes", "&Ναι"},
    {"&No", "Ό&χι"},
    // The choice of the file.
    {"%1 already exists.\nDo you want to replace it?", "Το αρχείο %1 υπάρχει ήδη.\nΝα αντικατασταθεί;"},
    {"Open", "Άνοιγμα"},
    {"&Open", "Ά&νοιγμα"},
    {"&Save", "Απο&θήκευση"},
    {"Save", "Αποθήκευση"},
    {"Save As", "Αποθήκευση ως"},
    {"Look in:", "Φάκελος:"},
    {"File &name:", "Ό&νομα αρχείου:"},
    {"Files of type:", "Είδος αρχείων:"},
    {"All Files (*)", "Όλα τα αρχεία (*)"},
    {"Files", "Αρχεία"},
    {"Back", "Πίσω"},
    {"Go back", "Πίσω"},
    {"Forward", "Εμπρός"},
    {"Go forward", "Εμπρός"},
    {"Parent Directory", "Ο φάκελος που τον περιέχει"},
    {"Go to the parent directory", "Ο φάκελος που τον περιέχει"},
    {"Create New Folder", "Νέος φάκελος"},
    {"Create a New Folder", "Νέος φάκελος"},
    {"&New Folder", "&Νέος φάκελος"},
    {"New Folder", "Νέος φάκελος"},
    {"List View", "Λίστα"},
    {"Change to list view mode", "Λίστα"},
    {"Detail View", "Λεπτομέρειες"},
    {"Change to detail view mode", "Λεπτομέρειες"},
    {"&Rename", "&Μετονομασία"},
    {"&Delete", "&Διαγραφή"},
    {"Show &hidden files", "&Κρυφά αρχεία"},
    {"Sidebar", "Θέσεις"},
    {"List of places and bookmarks", "Θέσεις και σελιδοδείκτες"},
    {"Computer", "Υπολογιστής"},
    {"Drive", "Δίσκος"},
    {"Folder", "Φάκελος"},
    {"Date Modified", "Αλλαγή"},
    {"Name", "Όνομα"},
    {"Size", "Μέγεθος"},
    {"Type", "Τύπος"},
}));

}  // namespace

QString PrintDialogTexts::translate(const char* /*context*/, const char* source, const char* /*remark*/,
                                    int /*count*/) const {
    const auto found = std::ranges::lower_bound(texts, std::string_view(source), {}, &Text::source);
    if (found == texts.end() || found->source != source) return {};
    return QString::fromUtf8(found->greek.data(), static_cast<qsizetype>(found->greek.size()));
}

}  // namespace platform
