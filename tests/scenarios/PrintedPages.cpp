#include "tests/scenarios/PrintedPages.h"

#include <array>
#include <cstdio>
#include <memory>
#include <regex>
#include <sstream>

namespace scenario {

namespace {

std::string outputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
    std::string output;
    std::array<char, 4096> part{};
    while (pipe && std::fgets(part.data(), part.size(), pipe.get()) != nullptr) output += part.data();
    return output;
}

Json rectOf(const std::string& element) {
    Json rect = Json::array();
    for (const char* side : {"left", "top", "width", "height"}) {
        std::smatch found;
        std::regex_search(element, found, std::regex(std::string(side) + "=\"(-?\\d+)\""));
        rect.push_back(found.empty() ? 0 : std::stoi(found[1]));
    }
    return rect;
}

std::string withoutTags(const std::string& element) {
    return std::regex_replace(element, std::regex("<[^>]*>"), "");
}

}  // namespace

Json printedPages(const std::filesystem::path& pdf) {
    std::istringstream lines(outputOf("pdftohtml -xml -zoom 3 -stdout '" + pdf.string() + "'"));
    Json pages = Json::array();
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("<page ")) {
            pages.push_back({{"rect", rectOf(line)}, {"images", Json::array()}, {"texts", Json::array()}});
        } else if (line.starts_with("<image ")) {
            pages.back()["images"].push_back({{"rect", rectOf(line)}});
        } else if (line.starts_with("<text ")) {
            pages.back()["texts"].push_back({{"rect", rectOf(line)}, {"text", withoutTags(line)}});
        }
    }
    return pages.empty() ? Json() : pages;
}

}  // namespace scenario
