#pragma once

namespace kalyxo {

/// What the view shows below the section bar.
enum class ContentMode { MainMenu = 0, PeriodicTable = 1, Page = 2, DataAnalyser = 8 };

}  // namespace kalyxo
