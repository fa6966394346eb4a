#pragma once

#include <string_view>

namespace kalyxo {

/// The web browser's published class id, without braces; those of the components are in the contract.
inline constexpr std::string_view kWebBrowserClass = "EAB22AC3-30C1-11CF-A7EB-0000C05BAE0B";

/// Class ids of molecule controller and molecule zoom in content pages. Page preparation replaces them by
/// those of the components.
inline constexpr std::string_view kPageMolCtrlClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3A104";
inline constexpr std::string_view kPageKzZoomClass = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3A105";

/// File names of the components in the ActiveX folder.
inline constexpr std::string_view kPeriodTableFile = "kyptgk.ocx";
inline constexpr std::string_view kSelectFile = "kzselectgk.ocx";
inline constexpr std::string_view kDataAnalFile = "kzdataangk.ocx";
inline constexpr std::string_view kMolCtrlFile = "kymolgk.ocx";
inline constexpr std::string_view kKzZoomFile = "kzzoomgk.ocx";

/// Host codes that browse selection and data analyser are initialised with.
inline constexpr short kSelectHostCode = 1102;
inline constexpr int kDataAnalHostCode = 1103;

}  // namespace kalyxo
