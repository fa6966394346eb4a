#pragma once

#include "platform/base/Messages.h"

namespace kalyxo {

/// Command ids of menu, accelerators and toolbar panel. Scripts and tests know them by their numbers, so a
/// number never changes; a new command takes the next one after the highest below 57600, where the platform's
/// own begin.
inline constexpr platform::UINT ID_APP_ABOUT = 57664;
inline constexpr platform::UINT ID_APP_EXIT = 57665;
inline constexpr platform::UINT ID_EDIT_COPY = 57634;
inline constexpr platform::UINT ID_EDIT_CUT = 57635;
inline constexpr platform::UINT ID_EDIT_FIND = 57636;
inline constexpr platform::UINT ID_EDIT_PASTE = 57637;
inline constexpr platform::UINT ID_EDIT_UNDO = 57643;
inline constexpr platform::UINT ID_FILE_NEW = 57600;
inline constexpr platform::UINT ID_FILE_OPEN = 57601;
inline constexpr platform::UINT ID_FILE_SAVE = 57603;
inline constexpr platform::UINT ID_FILE_PRINT = 57607;
inline constexpr platform::UINT ID_NEXT_PANE = 57680;
inline constexpr platform::UINT ID_PREV_PANE = 57681;
inline constexpr platform::UINT ID_CANCEL_EDIT = 32768;
inline constexpr platform::UINT ID_SEARCH = 32771;
inline constexpr platform::UINT ID_HELP_CONTENTS = 32772;
inline constexpr platform::UINT ID_BACK = 32773;
inline constexpr platform::UINT ID_FORWARD = 32774;
inline constexpr platform::UINT ID_SECTION_STRUCT = 32775;
inline constexpr platform::UINT ID_SECTION_REACT = 32776;
inline constexpr platform::UINT ID_SECTION_USES = 32777;
inline constexpr platform::UINT ID_SECTION_HISTORY = 32778;
inline constexpr platform::UINT ID_SECTION_SOURCE = 32779;
inline constexpr platform::UINT ID_SECTION_CONCEPT = 32780;
inline constexpr platform::UINT ID_SECTION_ELEMCOMP = 32781;
inline constexpr platform::UINT ID_PERIODIC_TABLE = 32782;
inline constexpr platform::UINT ID_DATA_ANALYSER = 32783;
inline constexpr platform::UINT ID_BOOKMARK_ADD = 32784;
inline constexpr platform::UINT ID_BOOKMARK_GOTO = 32785;
inline constexpr platform::UINT ID_COPY_VIDEO = 32787;
inline constexpr platform::UINT ID_COPY_MOLECULE = 32788;
inline constexpr platform::UINT ID_TOOLBAR = 32790;
inline constexpr platform::UINT ID_COPY_ALL_DATA = 32794;
inline constexpr platform::UINT ID_COPY_SELECTED = 32795;
inline constexpr platform::UINT ID_ONLINE_PRODUCT = 32796;
inline constexpr platform::UINT ID_ONLINE_SUPPORT = 32797;
inline constexpr platform::UINT ID_ONLINE_PRODUCTS = 32798;
inline constexpr platform::UINT ID_COPY_GRAPH = 32799;
inline constexpr platform::UINT ID_PRINT_MOLECULE = 32800;
inline constexpr platform::UINT ID_PRINT_VIDEO = 32801;
inline constexpr platform::UINT ID_FULL_SCREEN = 32802;

/// Control ids of the view's children.
inline constexpr platform::UINT IDC_GLOSSARY_POPUP = 185;
inline constexpr platform::UINT IDC_PERIODIC_TABLE = 1010;
inline constexpr platform::UINT IDC_WEB = 1025;
inline constexpr platform::UINT IDC_SELECT = 1035;
inline constexpr platform::UINT IDC_DATA_ANALYSER = 1045;
inline constexpr platform::UINT IDC_VERSION_CHECK = 1046;
inline constexpr platform::UINT IDC_SPLITTER = 7801;

}  // namespace kalyxo
