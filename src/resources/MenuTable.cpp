#include "src/resources/MenuTable.h"

#include <algorithm>
#include <array>

#include "platform/text/GreekLiteral.h"
#include "src/resources/CommandIds.h"

namespace kalyxo {

using namespace platform::literals;
using platform::Accelerator;
using platform::Menu;
using platform::MenuItem;

namespace {

constexpr MenuItem kSeparator{};

constexpr std::array kFileMenu = {
    MenuItem{"Εκτύπωση"_gr, ID_FILE_PRINT},
    MenuItem{"Εκτύπωση μορίου"_gr, ID_PRINT_MOLECULE},
    MenuItem{"Εκτύπωση βίντεο"_gr, ID_PRINT_VIDEO},
    kSeparator,
    MenuItem{"Έξοδος"_gr, ID_APP_EXIT},
};

constexpr std::array kEditMenu = {
    MenuItem{"Αποκοπή"_gr, ID_EDIT_CUT},
    MenuItem{"Αντιγραφή"_gr, ID_EDIT_COPY},
    MenuItem{"Αντιγραφή μορίου"_gr, ID_COPY_MOLECULE},
    MenuItem{"Αντιγραφή βίντεο"_gr, ID_COPY_VIDEO},
    MenuItem{"Αντιγραφή όλων των δεδομένων"_gr, ID_COPY_ALL_DATA},
    MenuItem{"Αντιγραφή γραφικής παράστασης"_gr, ID_COPY_GRAPH},
    MenuItem{"Αντιγραφή επιλεγμένων"_gr, ID_COPY_SELECTED},
    MenuItem{"Επικόλληση"_gr, ID_EDIT_PASTE},
};

constexpr std::array kGoMenu = {
    MenuItem{"Επιστροφή"_gr, ID_BACK},
    MenuItem{"Επόμενο"_gr, ID_FORWARD},
    kSeparator,
    MenuItem{"Αλλαγή των υλικών"_gr, ID_SECTION_REACT},
    MenuItem{"Δομές"_gr, ID_SECTION_STRUCT},
    MenuItem{"Στοιχεία και ενώσεις"_gr, ID_SECTION_ELEMCOMP},
    MenuItem{"Η χημεία στην πράξη"_gr, ID_SECTION_USES},
    MenuItem{"Πηγές"_gr, ID_SECTION_SOURCE},
    MenuItem{"Ιστορία"_gr, ID_SECTION_HISTORY},
    MenuItem{"Έννοιες"_gr, ID_SECTION_CONCEPT},
    kSeparator,
    MenuItem{"Περιοδικός Πίνακας"_gr, ID_PERIODIC_TABLE},
    MenuItem{"Αναλυτής δεδομένων"_gr, ID_DATA_ANALYSER},
    kSeparator,
    MenuItem{"Αναζήτηση"_gr, ID_SEARCH},
};

constexpr std::array kOptionsMenu = {MenuItem{"Γραμμή εργαλείων"_gr, ID_TOOLBAR}};

constexpr std::array kBookmarkMenu = {
    MenuItem{"Προσθήκη"_gr, ID_BOOKMARK_ADD},
    MenuItem{"Μετάβαση"_gr, ID_BOOKMARK_GOTO},
};

constexpr std::array kOnlineMenu = {
    MenuItem{"Ηλεκτρονική υποστήριξη"_gr, ID_ONLINE_SUPPORT},
    MenuItem{"Orvane", ID_ONLINE_PRODUCTS},
};

constexpr std::array kHelpMenu = {
    MenuItem{"Περιεχόμενα"_gr, ID_HELP_CONTENTS},
    MenuItem{"Πληροφορίες για..."_gr, ID_APP_ABOUT},
};

constexpr std::array kMenu = {
    Menu{"Αρχείο"_gr, kFileMenu},
    Menu{"Επεξεργασία"_gr, kEditMenu},
    Menu{"Μετάβαση"_gr, kGoMenu},
    Menu{"Επιλογές"_gr, kOptionsMenu},
    Menu{"Σελιδοδείκτης"_gr, kBookmarkMenu},
    Menu{"Στο δίκτυο"_gr, kOnlineMenu},
    Menu{"Βοήθεια"_gr, kHelpMenu},
};

/// Undo, save, the two of panes and the end of an edit have no handler; their keys do nothing.
constexpr std::array kAccelerators = {
    Accelerator{"Ctrl+C", ID_EDIT_COPY},   Accelerator{"Ctrl+Ins", ID_EDIT_COPY},
    Accelerator{"Ctrl+X", ID_EDIT_CUT},    Accelerator{"Shift+Del", ID_EDIT_CUT},
    Accelerator{"Ctrl+V", ID_EDIT_PASTE},  Accelerator{"Shift+Ins", ID_EDIT_PASTE},
    Accelerator{"Ctrl+Z", ID_EDIT_UNDO},   Accelerator{"Alt+Backspace", ID_EDIT_UNDO},
    Accelerator{"Ctrl+N", ID_FILE_NEW},    Accelerator{"Ctrl+O", ID_FILE_OPEN},
    Accelerator{"Ctrl+S", ID_FILE_SAVE},   Accelerator{"F6", ID_NEXT_PANE},
    Accelerator{"Shift+F6", ID_PREV_PANE}, Accelerator{"Esc", ID_CANCEL_EDIT},
    Accelerator{"F1", ID_HELP_CONTENTS},   Accelerator{"F11", ID_FULL_SCREEN},
    Accelerator{"Ctrl+P", ID_FILE_PRINT},  Accelerator{"Alt+Left", ID_BACK},
    Accelerator{"Alt+Right", ID_FORWARD},  Accelerator{"Ctrl+F", ID_EDIT_FIND},
};

}  // namespace

std::span<const Menu> MainMenu() { return kMenu; }

std::string_view MenuItemText(platform::UINT command) {
    for (const Menu& menu : kMenu) {
        const auto item = std::ranges::find(menu.items, command, &MenuItem::id);
        if (item != menu.items.end()) return item->text;
    }
    return {};
}

std::span<const Accelerator> MainAccelerators() { return kAccelerators; }

}  // namespace kalyxo
