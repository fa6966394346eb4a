#pragma once

#include <cstdint>

#include "platform/base/Geometry.h"

namespace platform {

/// A handle of a window: its number in the window table; 0 is no window. It fits into the 32 bits that
/// automation calls and message parameters carry.
using HWND = std::int32_t;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

/// Window messages, with their published numbers.
inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_SETFOCUS = 0x0007;
inline constexpr UINT WM_KILLFOCUS = 0x0008;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_ERASEBKGND = 0x0014;
inline constexpr UINT WM_SETCURSOR = 0x0020;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_CUT = 0x0300;
inline constexpr UINT WM_COPY = 0x0301;
inline constexpr UINT WM_PASTE = 0x0302;

/// Size types of WM_SIZE.
inline constexpr UINT SIZE_RESTORED = 0;
inline constexpr UINT SIZE_MINIMIZED = 1;
inline constexpr UINT SIZE_MAXIMIZED = 2;

/// Window styles that the program uses, with their published values.
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD FWS_ADDTOTITLE = 0x00008000;

/// Show commands.
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNORMAL = 1;
inline constexpr int SW_SHOWMINIMIZED = 2;
inline constexpr int SW_SHOWMAXIMIZED = 3;
inline constexpr int SW_SHOW = 5;

inline constexpr unsigned VK_TAB = 9;
inline constexpr unsigned VK_RETURN = 13;
inline constexpr unsigned VK_ESCAPE = 27;
inline constexpr unsigned VK_SPACE = 32;
inline constexpr unsigned VK_LEFT = 37;
inline constexpr unsigned VK_UP = 38;
inline constexpr unsigned VK_RIGHT = 39;
inline constexpr unsigned VK_DOWN = 40;

/// A message to a window.
struct MSG {
    HWND hwnd = 0;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

/// Two signed 16-bit coordinates in one message parameter, x in the low half.
constexpr LPARAM packPoint(CPoint p) {
    const auto low = static_cast<std::uint32_t>(p.x) & 0xFFFFU;
    const auto high = (static_cast<std::uint32_t>(p.y) & 0xFFFFU) << 16;
    return static_cast<LPARAM>(low | high);
}

/// The point that `packPoint` has packed.
constexpr CPoint unpackPoint(LPARAM lParam) {
    const auto bits = static_cast<std::uint64_t>(lParam);
    return {static_cast<std::int16_t>(bits & 0xFFFFU), static_cast<std::int16_t>((bits >> 16) & 0xFFFFU)};
}

}  // namespace platform
