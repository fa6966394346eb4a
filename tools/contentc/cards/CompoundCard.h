#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/DataSet.h"
#include "tools/contentc/cards/CardTable.h"

namespace contentc {

/// Sets a formula as HTML.
using FormulaHtml = std::function<std::string(std::string_view)>;

/// What is known of a compound: formula, mass of one mol, melting and boiling point. `nameOrFormula` (UTF-8)
/// is looked for in the data set of compounds without regard to case and accents: the whole name, the name
/// without what stands in brackets behind it, or that. A formula that several compounds have, or none, gives
/// formula and mass only. Nothing for a text that is neither a name of the data set nor a formula.
std::optional<std::vector<CardRow>> compoundRows(const formats::DataSet& compounds,
                                                 std::string_view nameOrFormula,
                                                 const FormulaHtml& formulaHtml);

}  // namespace contentc
