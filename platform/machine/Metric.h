#pragma once

#include <array>
#include <string_view>

namespace platform {

/// The system metrics that the program asks for, by the platform's numbers. Pixels.
enum SystemMetric : int {
    SM_CXSCREEN = 0,      ///< width of the screen
    SM_CYSCREEN = 1,      ///< height of the screen
    SM_CXVSCROLL = 2,     ///< width of a vertical scroll bar
    SM_CYCAPTION = 4,     ///< height of a window's caption
    SM_CXDLGFRAME = 7,    ///< width of a dialog's frame
    SM_CYDLGFRAME = 8,    ///< height of a dialog's frame
    SM_CYMENU = 15,       ///< height of a one-line menu bar
    SM_CYSMCAPTION = 51,  ///< height of a small caption
    SM_CXMAXIMIZED = 61,  ///< width of a maximised window
    SM_CYMAXIMIZED = 62,  ///< height of a maximised window
};

/// A metric that a machine's settings can give, by name.
struct MetricName {
    SystemMetric metric;
    std::string_view name;
    int standard;  ///< the value when the settings do not give it
};

/// All metrics that the settings can give. The size of the screen has fields of its own there.
inline constexpr std::array<MetricName, 8> metricNames = {{
    {SM_CXMAXIMIZED, "SM_CXMAXIMIZED", 1032},
    {SM_CYMAXIMIZED, "SM_CYMAXIMIZED", 748},
    {SM_CYCAPTION, "SM_CYCAPTION", 19},
    {SM_CYSMCAPTION, "SM_CYSMCAPTION", 16},
    {SM_CYMENU, "SM_CYMENU", 19},
    {SM_CXDLGFRAME, "SM_CXDLGFRAME", 3},
    {SM_CYDLGFRAME, "SM_CYDLGFRAME", 3},
    {SM_CXVSCROLL, "SM_CXVSCROLL", 16},
}};

}  // namespace platform
