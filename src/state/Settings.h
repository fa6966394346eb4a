#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/registry/Registry.h"

namespace kalyxo {

/// Frame states as the registry holds them.
inline constexpr int kFrameNormal = 0;
inline constexpr int kFrameMaximised = 2;

/// The saved window layout, in pixels.
struct WindowLayout {
    int splitterPos = 216;
    int frameState = kFrameNormal;
    platform::CRect frame;

    friend bool operator==(const WindowLayout&, const WindowLayout&) = default;
};

/// Where the program runs.
struct ProgramLocation {
    std::string folder;  ///< no trailing backslash
    bool outsideInstallFolder = false;
};

/// Path of the settings key under HKEY_LOCAL_MACHINE.
std::string SettingsKeyPath();

/// Where the program runs, from the full path of its file and the installed folder in the settings. When that
/// is missing or another folder, the program runs outside its installed folder.
ProgramLocation LocateProgram(std::string_view programFile, const std::optional<std::string>& directory);

/// The layout of a first start: four fifths of the screen, in its middle; none where that is less than the
/// frame that `ReadLayout` takes when nothing is saved.
std::optional<WindowLayout> FirstLayout(const platform::CRect& screen);

/// Reads the layout from the settings key. A value that is missing or of another type has its default.
/// Without the frame's state, the frame is 640 × 480 in the middle of the screen, or maximised on a screen
/// narrower than 700.
WindowLayout ReadLayout(const platform::RegistryKey& key, const platform::CRect& screen);

/// The size of the text of pages in percent; 100 when none is saved.
int ReadTextSize(const platform::RegistryKey& key);
/// Writes it to the settings key; false when that cannot be opened.
bool WriteTextSize(platform::Registry& registry, int percent);

/// Writes the layout to the settings key, which is created when it is missing; false when it can be neither
/// opened nor created.
bool WriteLayout(platform::Registry& registry, const WindowLayout& layout);

}  // namespace kalyxo
