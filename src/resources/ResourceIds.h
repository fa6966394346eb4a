#pragma once

#include "platform/base/Messages.h"

namespace kalyxo {

/// String table ids.
inline constexpr platform::UINT IDS_OLE_INIT_FAILED = 100;
inline constexpr platform::UINT IDS_BOOKMARK_PERIODIC_TABLE = 200;
inline constexpr platform::UINT IDS_SETTINGS_KEY = 201;
inline constexpr platform::UINT IDS_BOOKMARK_DATA_ANALYSER = 202;
inline constexpr platform::UINT IDS_APP_TITLE = 57344;
inline constexpr platform::UINT IDS_BOOKMARKS_NOT_CREATED = 61204;
inline constexpr platform::UINT IDS_BOOKMARKS_NOT_WRITTEN = 61205;
inline constexpr platform::UINT IDS_BOOKMARK_NAME_TAKEN = 61207;
inline constexpr platform::UINT IDS_BOOKMARK_RENAME = 61208;
inline constexpr platform::UINT IDS_BOOKMARK_ADD = 61209;
inline constexpr platform::UINT IDS_BOOKMARK_STRUCT = 61210;
inline constexpr platform::UINT IDS_BOOKMARK_REACT = 61211;
inline constexpr platform::UINT IDS_BOOKMARK_USES = 61212;
inline constexpr platform::UINT IDS_BOOKMARK_HISTORY = 61213;
inline constexpr platform::UINT IDS_BOOKMARK_SOURCE = 61214;
inline constexpr platform::UINT IDS_BOOKMARK_ELEMCOMP = 61215;
inline constexpr platform::UINT IDS_REGISTRY_UNREADABLE = 61216;
inline constexpr platform::UINT IDS_NO_BROWSER = 61218;
inline constexpr platform::UINT IDS_BOOKMARK_CONCEPT = 61219;
inline constexpr platform::UINT IDS_COMPONENT_OUTDATED = 61226;
inline constexpr platform::UINT IDS_OLDER_VERSION = 61228;
inline constexpr platform::UINT IDS_NO_PERIODIC_TABLE = 61229;
inline constexpr platform::UINT IDS_RUN_AGAIN = 61230;
inline constexpr platform::UINT IDS_NO_PRINTER = 61232;
inline constexpr platform::UINT IDS_MAIN_MENU = 61300;
inline constexpr platform::UINT IDS_SECTIONS = 61301;
inline constexpr platform::UINT IDS_PREPARING_PAGE = 61302;
inline constexpr platform::UINT IDS_PAGE_NOT_OPENED = 61303;
inline constexpr platform::UINT IDS_PAGE_NOT_CREATED = 61304;
inline constexpr platform::UINT IDS_NO_ELEMENT_INDEX = 61305;
inline constexpr platform::UINT IDS_OUT_OF_MEMORY = 61306;
inline constexpr platform::UINT IDS_PICTURE_DAMAGED = 61307;
inline constexpr platform::UINT IDS_BOOKMARKS_DAMAGED = 61308;
inline constexpr platform::UINT IDS_BOOKMARK_INTRODUCTION = 61309;
inline constexpr platform::UINT IDS_INTERNAL_ERROR = 61310;
inline constexpr platform::UINT IDS_READING_FOLDERS = 61311;
inline constexpr platform::UINT IDS_LOCATE_CONTENT = 61312;
inline constexpr platform::UINT IDS_LOCATE_BOOKMARKS = 61313;
inline constexpr platform::UINT IDS_REMOVABLE_DRIVE = 61314;
inline constexpr platform::UINT IDS_FIXED_DRIVE = 61315;
inline constexpr platform::UINT IDS_NETWORK_DRIVE = 61316;
inline constexpr platform::UINT IDS_CD_DRIVE = 61317;
inline constexpr platform::UINT IDS_RAM_DRIVE = 61318;
inline constexpr platform::UINT IDS_SCREEN_SHOWS_ONLY = 61319;
inline constexpr platform::UINT IDS_SO_MANY_COLOURS = 61320;
inline constexpr platform::UINT IDS_PREPARING_MACHINE = 61323;
inline constexpr platform::UINT IDS_OPENING_BOOKMARKS = 61324;
inline constexpr platform::UINT IDS_BOOKMARK_GOTO = 61325;
inline constexpr platform::UINT IDS_BOOKMARK_DELETE = 61326;
inline constexpr platform::UINT IDS_BOOKMARK_DELETE_QUESTION = 61327;
inline constexpr platform::UINT IDS_FOLDER_DELETE = 61328;
inline constexpr platform::UINT IDS_FOLDER_DELETE_QUESTION = 61329;
inline constexpr platform::UINT IDS_LAST_FOLDER_STAYS = 61330;
inline constexpr platform::UINT IDS_FOLDER_NEW = 61331;
inline constexpr platform::UINT IDS_FOLDER_RENAME = 61332;
inline constexpr platform::UINT IDS_FOLDER_NAME_TAKEN = 61333;
inline constexpr platform::UINT IDS_FOLDER_NAME_TAKEN_CAPTION = 61334;
inline constexpr platform::UINT IDS_FOLDER_DEFAULT_NAME = 61335;
inline constexpr platform::UINT IDS_SPLITTER = 61336;
inline constexpr platform::UINT IDS_READING_WORDS = 61337;
inline constexpr platform::UINT IDS_SEARCHING_WORD = 61338;
inline constexpr platform::UINT IDS_TOO_MANY_FIRST_LETTERS = 61339;
inline constexpr platform::UINT IDS_COLUMN_NAME = 61340;
inline constexpr platform::UINT IDS_COLUMN_TOPIC = 61341;
inline constexpr platform::UINT IDS_COLUMN_SUBGROUP = 61342;
inline constexpr platform::UINT IDS_NO_BROWSE_SELECTION = 61343;
inline constexpr platform::UINT IDS_NO_DATA_ANALYSER = 61344;
inline constexpr platform::UINT IDS_NO_MOLECULE_CONTROLLER = 61345;
inline constexpr platform::UINT IDS_NO_MOLECULE_ZOOM = 61346;
/// Why there is no machine to run on; "%s" is the file or folder.
inline constexpr platform::UINT IDS_START_NOT_MADE = 61347;
inline constexpr platform::UINT IDS_START_NOT_READ = 61348;
inline constexpr platform::UINT IDS_START_DAMAGED = 61349;
inline constexpr platform::UINT IDS_START_NO_SANDBOX = 61350;
/// "%s" is the folder that the settings for all users name.
inline constexpr platform::UINT IDS_NO_SHARED_CONTENT = 61351;

/// Dialog ids.
inline constexpr platform::UINT IDD_ABOUT = 100;
inline constexpr platform::UINT IDD_BOOKMARK = 150;
inline constexpr platform::UINT IDD_FOLDER_NAME = 158;
inline constexpr platform::UINT IDD_ENLARGED_VIEW = 151;
inline constexpr platform::UINT IDD_FIND_FOLDER = 211;
inline constexpr platform::UINT IDD_SEARCH = 178;
inline constexpr platform::UINT IDD_SPLASH = 153;
inline constexpr platform::UINT IDD_TOOL_PANEL = 165;

/// Controls of the About box.
inline constexpr int IDC_VERSION_DATA_ANALYSER = 1005;
inline constexpr int IDC_VERSION_SELECT = 1006;
inline constexpr int IDC_VERSION_PERIODIC_TABLE = 1007;
inline constexpr int IDC_VERSION_MOLECULE_CONTROLLER = 1008;
inline constexpr int IDC_VERSION_MOLECULE_ZOOM = 1020;

/// The web browser of the enlarged view.
inline constexpr platform::UINT IDC_ENLARGED_BROWSER = 1004;

/// Controls of the folder chooser.
inline constexpr int IDC_FOLDER_TREE = 1009;
inline constexpr int IDC_FOLDER_DRIVES = 1023;
inline constexpr int IDC_FOLDER_PROMPT = 1024;

/// Controls of the search dialog.
inline constexpr int IDC_SEARCH_WORD = 1001;
inline constexpr int IDC_WORD_LIST = 1003;
inline constexpr int IDC_SEARCH_RUN = 1014;
inline constexpr int IDC_SEARCH_LABEL = 1015;
inline constexpr int IDC_ALTERNATIVES = 1017;
inline constexpr int IDC_RESULTS = 1019;
inline constexpr int IDC_SEARCH_WORDS = 1021;

/// Controls of the bookmark organiser; the name dialog has the first of them too.
inline constexpr int IDC_BOOKMARK_NAME = 1001;
inline constexpr int IDC_BOOKMARK_ADVANCED = 1002;
inline constexpr int IDC_BOOKMARK_NEW_FOLDER = 1004;
inline constexpr int IDC_BOOKMARK_RENAME = 1005;
inline constexpr int IDC_BOOKMARK_DELETE = 1006;
inline constexpr int IDC_BOOKMARK_TREE = 1009;

/// Bitmap ids.
inline constexpr platform::UINT IDB_SPLITTER_PATTERN = 133;
inline constexpr platform::UINT IDB_TOOL_COPY = 166;
inline constexpr platform::UINT IDB_TOOL_PASTE = 167;
inline constexpr platform::UINT IDB_TOOL_PRINT = 168;
inline constexpr platform::UINT IDB_TOOL_FORWARD = 169;
inline constexpr platform::UINT IDB_TOOL_BACK = 170;
inline constexpr platform::UINT IDB_BAR_SHADOW = 188;
inline constexpr platform::UINT IDB_BAR_SELECTED = 195;
inline constexpr platform::UINT IDB_BAR_HOVER = 196;
inline constexpr platform::UINT IDB_BAR_NORMAL = 197;
inline constexpr platform::UINT IDB_TOOL_SEARCH = 200;
inline constexpr platform::UINT IDB_ABOUT_PICTURE = 204;
inline constexpr platform::UINT IDB_ABOUT_LOGO = 205;
inline constexpr platform::UINT IDB_SPLASH = 207;

/// Cursor ids.
inline constexpr platform::UINT IDC_RESIZE_HORIZONTAL = 131;
inline constexpr platform::UINT IDC_RESIZE_VERTICAL = 132;
inline constexpr platform::UINT IDC_HAND_CURSOR = 145;
inline constexpr platform::UINT IDC_DRAG_CURSOR = 192;

}  // namespace kalyxo
