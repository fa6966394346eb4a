#include "tools/contentc/source/EscapeHtml.h"

namespace contentc {

std::string escapeHtml(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

}  // namespace contentc
