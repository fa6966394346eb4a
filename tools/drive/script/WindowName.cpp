#include "tools/drive/script/WindowName.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tools/drive/script/Numbers.h"

namespace drive {

namespace {

constexpr std::array<std::pair<std::string_view, NamedWindow>, 4> windowNames = {{
    {"view", NamedWindow::view},
    {"frame", NamedWindow::frame},
    {"panel", NamedWindow::panel},
    {"splitter", NamedWindow::splitter},
}};

}  // namespace

std::optional<WindowName> windowNameOf(std::string_view word) {
    const auto named = std::ranges::find(windowNames, word, [](const auto& row) { return row.first; });
    if (named != windowNames.end()) return named->second;
    if (word.starts_with('#')) {
        const std::optional<int> id = number<int>(word.substr(1));
        return id ? std::optional<WindowName>(IdName{*id}) : std::nullopt;
    }
    const std::optional<platform::HWND> handle = number<platform::HWND>(word);
    return handle ? std::optional<WindowName>(HandleName{*handle}) : std::nullopt;
}

}  // namespace drive
