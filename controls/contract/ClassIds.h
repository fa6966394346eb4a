#pragma once

#include <string_view>

/// Class ids of the component libraries, without braces.
namespace controls {

inline constexpr std::string_view periodicTableClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E101";
inline constexpr std::string_view browseSelectionClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E102";
inline constexpr std::string_view dataAnalyserClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E103";
inline constexpr std::string_view moleculeControllerClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E104";
inline constexpr std::string_view moleculeZoomClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E105";

}  // namespace controls
