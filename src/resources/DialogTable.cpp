#include "src/resources/DialogTable.h"

#include <array>

#include "platform/text/GreekLiteral.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform::literals;
using platform::CRect;
using platform::DialogControl;
using platform::DialogFrame;
using platform::DialogTemplate;
using platform::ES_AUTOHSCROLL;
using platform::IDC_STATIC;
using platform::IDCANCEL;
using platform::IDOK;
using platform::WS_VISIBLE;
using Kind = platform::DialogControlKind;

namespace {

constexpr DialogControl label(const CRect& rect, std::string_view text) {
    return {Kind::staticText, IDC_STATIC, rect, text};
}

constexpr DialogControl bitmap(int x, int y, platform::UINT id) {
    return {Kind::bitmap, IDC_STATIC, CRect::at(x, y, 0, 0), {}, id};
}

/// The lines of the About box with a component's version.
constexpr int kVersionLine = 9;
constexpr int versionTop(int line) { return 30 + line * kVersionLine; }

constexpr DialogControl versionLabel(int line, std::string_view text) {
    return label(CRect::at(50, versionTop(line), 70, 8), text);
}

constexpr DialogControl version(int line, int id) {
    return {Kind::staticText, id, CRect::at(121, versionTop(line), 34, 8), "?"};
}

constexpr std::array kAboutDialog = {
    DialogControl{Kind::defaultPushButton, IDOK, CRect::at(160, 60, 50, 14), "OK"},
    bitmap(7, 9, IDB_ABOUT_PICTURE),
    bitmap(145, 7, IDB_ABOUT_LOGO),
    label(CRect::at(50, 7, 90, 8), "Kalyxo v1.1"),
    label(CRect::at(50, 16, 90, 8), "© Orvane"_gr),
    versionLabel(0, "Data Analyser :"),
    version(0, IDC_VERSION_DATA_ANALYSER),
    versionLabel(1, "Periodic Table :"),
    version(1, IDC_VERSION_PERIODIC_TABLE),
    versionLabel(2, "Browse Selection :"),
    version(2, IDC_VERSION_SELECT),
    versionLabel(3, "Mol Controller :"),
    version(3, IDC_VERSION_MOLECULE_CONTROLLER),
    versionLabel(4, "Molecule Zoom :"),
    version(4, IDC_VERSION_MOLECULE_ZOOM),
};

/// The dialog computes its sizes from the system's metrics, and creates its browser itself.
constexpr std::array kEnlargedViewDialog = {
    DialogControl{Kind::defaultPushButton, IDOK, CRect::at(200, 312, 40, 12), "OK"},
};

constexpr std::array kFindFolderDialog = {
    DialogControl{Kind::staticText, IDC_FOLDER_PROMPT, CRect::at(7, 7, 173, 10)},
    DialogControl{Kind::treeView, IDC_FOLDER_TREE, CRect::at(7, 20, 173, 110), "Folders"},
    DialogControl{Kind::comboBox, IDC_FOLDER_DRIVES, CRect::at(7, 135, 173, 80), "Drives"},
    DialogControl{Kind::defaultPushButton, IDOK, CRect::at(76, 156, 50, 14), "OK"},
    DialogControl{Kind::pushButton, IDCANCEL, CRect::at(130, 156, 50, 14), "Cancel"},
};

constexpr platform::DWORD kUsual = platform::WS_VISIBLE | platform::WS_TABSTOP;

constexpr std::array kSearchDialog = {
    DialogControl{Kind::staticText, IDC_SEARCH_LABEL, CRect::at(5, 5, 40, 8), "Αναζήτηση"_gr},
    DialogControl{Kind::edit,
                  IDC_SEARCH_WORD,
                  CRect::at(5, 15, 90, 12),
                  {},
                  0,
                  kUsual | platform::ES_LOWERCASE | platform::ES_AUTOHSCROLL},
    DialogControl{Kind::listBox, IDC_WORD_LIST, CRect::at(5, 30, 90, 157), "Λέξεις"_gr, 0,
                  kUsual | platform::LBS_SORT},
    DialogControl{Kind::checkBox, IDC_ALTERNATIVES, CRect::at(1, 192, 98, 8), "Αναζήτηση εναλλακτικών"_gr, 0,
                  kUsual | platform::BS_LEFTTEXT},
    DialogControl{Kind::listView, IDC_RESULTS, CRect::at(100, 16, 240, 184), "Αποτελέσματα"_gr, 0,
                  kUsual | platform::LVS_SORTASCENDING},
    DialogControl{Kind::listBox, IDC_SEARCH_WORDS, CRect::at(87, 202, 89, 11), {}, 0, 0},
    // Right behind the results: it is disabled when the focus goes elsewhere.
    DialogControl{Kind::pushButton, IDOK, CRect::at(235, 205, 50, 15), "Μετάβαση"_gr, 0,
                  kUsual | platform::WS_DISABLED},
    DialogControl{Kind::defaultPushButton, IDC_SEARCH_RUN, CRect::at(180, 205, 50, 15), "Αναζήτηση"_gr, 0,
                  kUsual | platform::WS_DISABLED},
    DialogControl{Kind::pushButton, IDCANCEL, CRect::at(290, 205, 50, 15), "Ακύρωση"_gr},
};

constexpr DialogControl button(int id, const CRect& rect, std::string_view text) {
    return {Kind::pushButton, id, rect, text};
}

constexpr std::array kBookmarkDialog = {
    DialogControl{Kind::defaultPushButton, IDOK, CRect::at(141, 24, 50, 14), "OK"},
    button(IDCANCEL, CRect::at(87, 24, 50, 14), "Ακύρωση"_gr),
    DialogControl{.kind = Kind::edit,
                  .id = IDC_BOOKMARK_NAME,
                  .rect = CRect::at(7, 7, 210, 12),
                  .text = "Όνομα σελιδοδείκτη"_gr,
                  .style = WS_VISIBLE | ES_AUTOHSCROLL},
    button(IDC_BOOKMARK_ADVANCED, CRect::at(7, 24, 72, 14), "Για προχωρημένους"_gr),
    button(IDC_BOOKMARK_NEW_FOLDER, CRect::at(7, 42, 72, 14), "Νέος φάκελος"_gr),
    button(IDC_BOOKMARK_RENAME, CRect::at(87, 42, 50, 14), "Μετονομασία"_gr),
    button(IDC_BOOKMARK_DELETE, CRect::at(141, 42, 50, 14), "Διαγραφή"_gr),
    DialogControl{Kind::treeView, IDC_BOOKMARK_TREE, CRect::at(7, 62, 210, 163),
                  "Φάκελοι και σελιδοδείκτες"_gr},
};

constexpr std::array kFolderNameDialog = {
    DialogControl{Kind::edit, IDC_BOOKMARK_NAME, CRect::at(7, 7, 172, 14), "Όνομα"_gr},
    DialogControl{Kind::defaultPushButton, IDOK, CRect::at(39, 26, 50, 14), "OK"},
    button(IDCANCEL, CRect::at(96, 26, 50, 14), "Cancel"),
};

constexpr std::array kDialogs = {
    DialogTemplate{IDD_ABOUT, "Πληροφορίες για Kalyxo"_gr, {217, 81}, kAboutDialog},
    DialogTemplate{IDD_BOOKMARK, "Bookmark", {224, 231}, kBookmarkDialog},
    DialogTemplate{IDD_FOLDER_NAME, "Folder", {186, 47}, kFolderNameDialog},
    DialogTemplate{IDD_ENLARGED_VIEW, {}, {433, 326}, kEnlargedViewDialog},
    DialogTemplate{IDD_FIND_FOLDER, "Find Folder", {187, 177}, kFindFolderDialog},
    DialogTemplate{IDD_SEARCH, "Αναζήτηση"_gr, {347, 226}, kSearchDialog, DialogFrame::window, IDC_RESULTS},
    // The program sets the size of these two.
    DialogTemplate{IDD_SPLASH, {}, {1, 1}, {}, DialogFrame::plain},
    DialogTemplate{IDD_TOOL_PANEL, {}, {186, 49}, {}, DialogFrame::tool},
};

}  // namespace

std::span<const DialogTemplate> DialogTable() { return kDialogs; }

}  // namespace kalyxo
