#include "tools/contentc/Options.h"

#include <vector>

namespace contentc {

std::optional<Options> parseOptions(std::span<const char* const> arguments) {
    Options options;
    std::vector<std::filesystem::path> folders;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (!argument.starts_with("--")) {
            folders.emplace_back(argument);
            continue;
        }
        const bool isImages = argument == "--images";
        if ((!isImages && argument != "--media") || ++i == arguments.size()) return std::nullopt;
        (isImages ? options.sources.images : options.sources.media).emplace_back(arguments[i]);
    }
    if (folders.size() != 2) return std::nullopt;
    options.sources.content = folders[0];
    options.output = folders[1];
    return options;
}

}  // namespace contentc
