#include "tools/contentc/cards/CardTable.h"

#include <algorithm>

#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"

namespace contentc {
namespace {

/// The name without what stands in brackets behind it, in the form in which names are compared.
std::string comparedName(const std::string& name) {
    std::string text = platform::fold(platform::fromUtf8(name.substr(0, name.find('('))));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

}  // namespace

std::vector<CardRow> withRowsOfAuthor(std::vector<CardRow> data, const std::vector<CardRow>& author) {
    for (const CardRow& row : author) {
        const auto same = std::ranges::find(data, comparedName(row.name),
                                            [](const CardRow& each) { return comparedName(each.name); });
        if (same == data.end()) {
            data.push_back(row);
        } else {
            *same = row;
        }
    }
    return data;
}

std::string cardTable(const std::vector<CardRow>& rows) {
    std::string html = "<TABLE CLASS=\"data\">\n";
    for (const CardRow& row : rows) html += "<TR><TH>" + row.name + "</TH><TD>" + row.value + "</TD></TR>\n";
    return html + "</TABLE>";
}

std::string numberHtml(std::string_view number) {
    if (!number.starts_with('-')) return std::string(number);
    return "&minus;" + std::string(number.substr(1));
}

}  // namespace contentc
