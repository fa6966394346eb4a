#include "tools/contentc/markdown/Figure.h"

#include <array>

#include "tools/contentc/markdown/Keyword.h"

namespace contentc {
namespace {

constexpr std::int32_t maxWidth = 10000;

constexpr std::array<Keyword, 1> beside{{{"πλάι", "side"}}};

/// Takes what stands up to `end` off the front, with `end`.
std::optional<std::string_view> takeUntil(std::string_view& text, std::string_view end) {
    const std::size_t at = text.find(end);
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view taken = trimmed(text.substr(0, at));
    text.remove_prefix(at + end.size());
    return taken;
}

void readSetting(FigureLine& figure, std::string_view setting) {
    const auto width = parseNumber(setting);
    if (width && *width > 0 && *width <= maxWidth) {
        figure.width = *width;
    } else if (findKeyword(beside, setting).index == 0) {
        figure.isBeside = true;
    } else {
        figure.unknown = setting;
    }
}

}  // namespace

std::optional<FigureLine> readFigure(std::string_view line) {
    std::string_view rest = trimmed(line);
    if (!rest.starts_with("![")) return std::nullopt;
    rest.remove_prefix(2);
    FigureLine figure;
    const auto alternative = takeUntil(rest, "](");
    if (!alternative) return std::nullopt;
    figure.alternative = *alternative;
    const std::size_t quote = rest.find('"');
    if (quote < rest.find(')')) {
        figure.file = trimmed(rest.substr(0, quote));
        rest.remove_prefix(quote + 1);
        const auto caption = takeUntil(rest, "\")");
        if (!caption) return std::nullopt;
        figure.caption = *caption;
    } else {
        const auto file = takeUntil(rest, ")");
        if (!file) return std::nullopt;
        figure.file = *file;
    }
    for (rest = trimmed(rest); rest.starts_with('{'); rest = trimmed(rest)) {
        rest.remove_prefix(1);
        const auto setting = takeUntil(rest, "}");
        if (!setting) return std::nullopt;
        readSetting(figure, *setting);
    }
    if (!rest.empty()) return std::nullopt;
    return figure;
}

std::optional<PictureSize> sizeOf(const FigureLine& figure, const PictureSizes& pictures) {
    const auto found = pictures.find(figure.file);
    if (found == pictures.end()) return std::nullopt;
    PictureSize size = found->second;
    if (figure.width > 0 && size.width > 0) {
        size.height = (size.height * figure.width + size.width / 2) / size.width;
        size.width = figure.width;
    }
    return size;
}

std::string shownPicture(std::string_view file) {
    constexpr std::string_view drawing = ".svg";
    if (!file.ends_with(drawing)) return std::string(file);
    return std::string(file.substr(0, file.size() - drawing.size())) + ".png";
}

}  // namespace contentc
