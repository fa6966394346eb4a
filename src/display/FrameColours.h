#pragma once

#include "platform/base/Messages.h"

namespace kalyxo {

/// The colours of the edges of bars, buttons and boxes.
inline constexpr platform::COLORREF kWhite = platform::RGB(255, 255, 255);
inline constexpr platform::COLORREF kLightGrey = platform::RGB(192, 192, 192);
inline constexpr platform::COLORREF kDarkGrey = platform::RGB(128, 128, 128);
inline constexpr platform::COLORREF kBlack = platform::RGB(0, 0, 0);

}  // namespace kalyxo
