#include "src/state/Settings.h"

#include "platform/base/Resources.h"
#include "platform/text/CodePage1253.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using platform::CRect;
using platform::HKEY_LOCAL_MACHINE;
using platform::RegistryKey;

namespace {

constexpr int kDefaultWidth = 640;
constexpr int kDefaultHeight = 480;
constexpr int kNarrowScreen = 700;
constexpr std::string_view kTextSizeValue = "TextSize";
constexpr int kDefaultTextSize = 100;

int numberOr(const RegistryKey& key, std::string_view name, int fallback) {
    const std::optional<std::uint32_t> stored = key.queryDword(name);
    return stored ? static_cast<int>(*stored) : fallback;
}

void useDefaultFrame(WindowLayout& layout, const CRect& screen) {
    const bool narrow = screen.Width() < kNarrowScreen;
    layout.frameState = narrow ? kFrameMaximised : kFrameNormal;
    const int left = screen.left + (narrow ? 0 : (screen.Width() - kDefaultWidth) / 2);
    const int top = screen.top + (narrow ? 0 : (screen.Height() - kDefaultHeight) / 2);
    layout.frame = CRect::at(left, top, kDefaultWidth, kDefaultHeight);
}

}  // namespace

std::string SettingsKeyPath() {
    return std::string(platform::LoadString(IDS_SETTINGS_KEY)) + "Library Edition";
}

ProgramLocation LocateProgram(std::string_view programFile, const std::optional<std::string>& directory) {
    const std::string_view ownFolder = programFile.substr(0, programFile.rfind('\\'));
    if (directory && platform::toLower(*directory) == platform::toLower(ownFolder)) {
        return {*directory, false};
    }
    return {std::string(ownFolder), true};
}

std::optional<WindowLayout> FirstLayout(const CRect& screen) {
    const int width = screen.Width() * 4 / 5;
    const int height = screen.Height() * 4 / 5;
    if (width < kDefaultWidth || height < kDefaultHeight) return std::nullopt;
    WindowLayout layout;
    layout.frame = CRect::at(screen.left + (screen.Width() - width) / 2,
                             screen.top + (screen.Height() - height) / 2, width, height);
    return layout;
}

WindowLayout ReadLayout(const RegistryKey& key, const CRect& screen) {
    WindowLayout layout;
    layout.splitterPos = numberOr(key, "Splitter", layout.splitterPos);
    const std::optional<std::uint32_t> size = key.queryDword("Size");
    if (!size) {
        useDefaultFrame(layout, screen);
        return layout;
    }
    layout.frameState = *size == kFrameNormal ? kFrameNormal : kFrameMaximised;
    layout.frame = {numberOr(key, "Left", 0), numberOr(key, "Top", 0), numberOr(key, "Right", kDefaultWidth),
                    numberOr(key, "Bottom", kDefaultHeight)};
    return layout;
}

int ReadTextSize(const RegistryKey& key) { return numberOr(key, kTextSizeValue, kDefaultTextSize); }

bool WriteTextSize(platform::Registry& registry, int percent) {
    std::optional<RegistryKey> key = registry.openKeyForWriting(HKEY_LOCAL_MACHINE, SettingsKeyPath());
    if (key) key->setDword(kTextSizeValue, static_cast<std::uint32_t>(percent));
    return key.has_value();
}

bool WriteLayout(platform::Registry& registry, const WindowLayout& layout) {
    const std::string path = SettingsKeyPath();
    std::optional<RegistryKey> key = registry.openKeyForWriting(HKEY_LOCAL_MACHINE, path);
    if (!key) key = registry.createKey(HKEY_LOCAL_MACHINE, path);
    if (!key) return false;
    const auto write = [&](std::string_view name, int value) {
        key->setDword(name, static_cast<std::uint32_t>(value));
    };
    write("Size", layout.frameState);
    write("Left", layout.frame.left);
    write("Top", layout.frame.top);
    write("Right", layout.frame.right);
    write("Bottom", layout.frame.bottom);
    write("Splitter", layout.splitterPos);
    return true;
}

}  // namespace kalyxo
