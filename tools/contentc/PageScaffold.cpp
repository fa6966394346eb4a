#include "tools/contentc/PageScaffold.h"

#include <algorithm>
#include <string>

#include "tools/contentc/MarkMessages.h"

namespace contentc {
namespace {

std::string mark(std::string_view name) { return "{{" + std::string(name) + "}}"; }

auto findLineWith(const std::vector<TextLine>& lines, const std::string& text) {
    return std::ranges::find_if(
        lines, [&text](const TextLine& line) { return line.text.find(text) != std::string::npos; });
}

void addUnlessBlank(std::vector<TextLine>& lines, std::string_view text, const SourcePlace& place) {
    if (!trimmed(text).empty()) lines.push_back({std::string(text), place});
}

constexpr const char* charset =
    R"(<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1253">)";

PageScaffold madeOf(std::initializer_list<const char*> head, std::initializer_list<const char*> foot) {
    const SourcePlace none{};
    PageScaffold scaffold;
    for (const char* line : head) scaffold.head.push_back({line, none});
    for (const char* line : foot) scaffold.foot.push_back({line, none});
    return scaffold;
}

}  // namespace

std::optional<PageScaffold> readScaffold(const SourceFile& file,
                                         std::initializer_list<std::string_view> placeholders,
                                         Diagnostics& diagnostics) {
    const std::vector<TextLine> lines = readLines(file, diagnostics);
    bool complete = true;
    const auto require = [&](std::string_view name) {
        if (findLineWith(lines, mark(name)) != lines.end()) return;
        diagnostics.error(file.place(), say::placeholderIsMissing, {mark(name)});
        complete = false;
    };
    for (const std::string_view name : placeholders) require(name);
    require("body");
    if (!complete) return std::nullopt;

    const std::string bodyMark = mark("body");
    const auto body = findLineWith(lines, bodyMark);
    const std::size_t at = body->text.find(bodyMark);
    PageScaffold scaffold;
    scaffold.head.assign(lines.begin(), body);
    addUnlessBlank(scaffold.head, std::string_view(body->text).substr(0, at), body->place);
    addUnlessBlank(scaffold.foot, std::string_view(body->text).substr(at + bodyMark.size()), body->place);
    scaffold.foot.insert(scaffold.foot.end(), body + 1, lines.end());
    return scaffold;
}

PageScaffold startScaffold() {
    return madeOf({"<HTML>", "<HEAD>", charset, "<TITLE>{{title}}</TITLE>", "</HEAD>", "<BODY>"},
                  {"</BODY>", "</HTML>"});
}

PageScaffold helpScaffold() {
    return madeOf({"<HTML>", "<HEAD>", charset, "<TITLE>{{title}}</TITLE>",
                   R"(<LINK REL="stylesheet" TYPE="text/css" HREF="style/kalyxo.css">)", "</HEAD>", "<BODY>",
                   "<DIV CLASS=\"page plain\">", "<H1>{{title}}</H1>"},
                  {"</DIV>", "</BODY>", "</HTML>"});
}

}  // namespace contentc
