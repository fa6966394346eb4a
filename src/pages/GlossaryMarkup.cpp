#include "src/pages/GlossaryMarkup.h"

namespace kalyxo {

namespace {

constexpr std::size_t kOpening = 2;  // "~G"
constexpr std::size_t kKeyLength = 8;
constexpr std::size_t kClosing = 2;  // "~" and the character after it

}  // namespace

bool InsertGlossaryLink(std::string& line, std::size_t start) {
    const std::size_t termAt = start + kOpening + kKeyLength;
    const std::size_t end = line.find('~', start + kOpening);
    if (end == std::string::npos || end < termAt) return false;
    const std::string_view text = line;
    std::string link = R"(<A HREF=")";
    link.append(kGlossaryPrefix).append(text.substr(start + kOpening, kKeyLength));
    link.append(R"(.htm"><U>)").append(text.substr(termAt, end - termAt)).append("</U></A>");
    line.replace(start, end + kClosing - start, link);
    return true;
}

}  // namespace kalyxo
