#pragma once

#include "platform/base/Messages.h"

/// Styles of the standard controls, and the codes by which they notify the window that contains them.
namespace platform {

// Styles of controls, with their published values.
inline constexpr DWORD WS_TABSTOP = 0x00010000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD ES_MULTILINE = 0x0004;
inline constexpr DWORD ES_LOWERCASE = 0x0010;
inline constexpr DWORD ES_AUTOHSCROLL = 0x0080;     ///< without it typing stops at the edit's width
inline constexpr DWORD LBS_SORT = 0x0002;           ///< entries in alphabetical order
inline constexpr DWORD LVS_SORTASCENDING = 0x0010;  ///< rows in ascending order of column 0 as they are added
inline constexpr DWORD BS_OWNERDRAW = 0x000B;       ///< its CButton draws it
inline constexpr DWORD BS_LEFTTEXT = 0x0020;        ///< a check box to the right of its text

// Codes of a control's commands, which its window handles with OnControl.
inline constexpr int BN_CLICKED = 0;
inline constexpr int EN_CHANGE = 0x0300;  ///< the text has changed
inline constexpr int EN_UPDATE = 0x0400;  ///< the text has changed but is not drawn yet; before EN_CHANGE
inline constexpr int LBN_SELCHANGE = 1;   ///< the user has selected another entry
inline constexpr int LBN_DBLCLK = 2;
inline constexpr int CBN_SELCHANGE = 1;  ///< the user has selected another entry

// Codes of notifications, which the window handles with OnNotify.
inline constexpr int NM_CLICK = -2;
inline constexpr int NM_DBLCLK = -3;
inline constexpr int NM_RETURN = -4;          ///< Enter; the default button is pushed unless this is handled
inline constexpr int NM_KILLFOCUS = -8;       ///< GetFocus tells which window has the focus now
inline constexpr int LVN_ITEMCHANGED = -101;  ///< another row is selected, or none (NMLISTVIEW)
inline constexpr int LVN_COLUMNCLICK = -108;  ///< a column's header was clicked (NMLISTVIEW)
inline constexpr int TVN_ITEMEXPANDING = -405;  ///< an item opens or closes (NMTREEVIEW)
inline constexpr int TVN_BEGINDRAG = -407;      ///< the user starts to drag an item (NMTREEVIEW)
inline constexpr int TVN_KEYDOWN = -412;        ///< a key, before the tree handles it (NMTVKEYDOWN)

/// A notification of a control.
struct NMHDR {
    HWND hwndFrom = 0;
    int idFrom = 0;
    int code = 0;
    bool handled = false;  ///< set when the containing window has a handler for it
};

/// An item of a tree; null is none.
using HTREEITEM = struct TreeItem*;

/// A notification that concerns an item of a tree.
struct NMTREEVIEW : NMHDR {
    HTREEITEM item = nullptr;
};

/// A key was pressed in a tree.
struct NMTVKEYDOWN : NMHDR {
    UINT wVKey = 0;
};

/// A notification that concerns a row of a list view.
struct NMLISTVIEW : NMHDR {
    int iItem = -1;     ///< row, −1 for none
    int iSubItem = -1;  ///< column
};

/// The id of a control and a code in one number, by which message maps find the handler.
constexpr UINT controlCode(int id, int code) {
    return (static_cast<UINT>(id) & 0xFFFFU) | (static_cast<UINT>(code) << 16);
}

}  // namespace platform
