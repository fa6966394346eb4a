#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace contentc {

/// A row of a card: a name and its value, HTML in UTF-8.
struct CardRow {
    std::string name;
    std::string value;
    bool operator==(const CardRow&) const = default;
};

/// The rows of the data with those of the author: one of the same name, up to the first bracket, takes the
/// place of the data's row; the others follow.
std::vector<CardRow> withRowsOfAuthor(std::vector<CardRow> data, const std::vector<CardRow>& author);

/// The table of the rows, one on each line.
std::string cardTable(const std::vector<CardRow>& rows);

/// A number with decimal comma as it is written in HTML: with a minus sign in place of a hyphen.
std::string numberHtml(std::string_view number);

}  // namespace contentc
