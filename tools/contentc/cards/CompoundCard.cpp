#include "tools/contentc/cards/CompoundCard.h"

#include <algorithm>
#include <string>

#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"
#include "platform/text/GreekLiteral.h"
#include "tools/contentc/cards/Formula.h"

namespace contentc {
namespace {

using namespace platform::literals;
using formats::DataColumn;
using formats::DataColumnKind;
using formats::DataSet;

const DataColumn* columnOf(const DataSet& set, DataColumnKind kind) {
    const auto found = std::ranges::find(set.columns, kind, &DataColumn::kind);
    return found == set.columns.end() ? nullptr : &*found;
}

const DataColumn* columnNamed(const DataSet& set, std::string_view title) {
    const auto found = std::ranges::find(set.columns, title, &DataColumn::title);
    return found == set.columns.end() ? nullptr : &*found;
}

/// Whether the name, folded, is the cell's: "αιθίνιο (ακετυλένιο)" has three names.
bool isNameOf(std::string_view folded, const std::string& cell) {
    const std::string name = platform::fold(cell);
    const std::size_t bracket = name.find(" (");
    if (bracket == std::string::npos || !name.ends_with(')')) return name == folded;
    return name == folded || name.substr(0, bracket) == folded ||
           name.substr(bracket + 2, name.size() - bracket - 3) == folded;
}

std::optional<std::size_t> rowNamed(const DataSet& set, std::string_view name) {
    const DataColumn* names = columnOf(set, DataColumnKind::text);
    if (!names) return std::nullopt;
    const auto found =
        std::ranges::find_if(names->cells, [folded = platform::fold(platform::fromUtf8(name))](
                                               const auto& cell) { return isNameOf(folded, cell); });
    if (found == names->cells.end()) return std::nullopt;
    return static_cast<std::size_t>(found - names->cells.begin());
}

/// The row with the formula, if just one has it.
std::optional<std::size_t> rowWithFormula(const DataSet& set, std::string_view formula) {
    const DataColumn* formulas = columnOf(set, DataColumnKind::formula);
    if (!formulas || std::ranges::count(formulas->cells, formula) != 1) return std::nullopt;
    return static_cast<std::size_t>(std::ranges::find(formulas->cells, formula) - formulas->cells.begin());
}

void addPoint(const DataSet& set, std::string_view title, std::size_t row, std::vector<CardRow>& rows) {
    const DataColumn* column = columnNamed(set, title);
    if (!column || column->cells[row].empty()) return;
    rows.push_back({platform::toUtf8(title) + " (1 atm)", numberHtml(column->cells[row]) + "&nbsp;&deg;C"});
}

void addFormula(const std::string& formula, const FormulaHtml& formulaHtml, std::vector<CardRow>& rows) {
    rows.push_back({"Τύπος", formulaHtml(formula)});
    if (const auto atoms = atomsOf(formula))
        rows.push_back({"Μάζα του ενός mol", molarMassText(*atoms) + "&nbsp;g/mol"});
}

}  // namespace

std::optional<std::vector<CardRow>> compoundRows(const DataSet& compounds, std::string_view nameOrFormula,
                                                 const FormulaHtml& formulaHtml) {
    auto row = rowNamed(compounds, nameOrFormula);
    if (!row) row = rowWithFormula(compounds, nameOrFormula);
    if (!row && !atomsOf(nameOrFormula)) return std::nullopt;
    std::vector<CardRow> rows;
    const DataColumn* formulas = columnOf(compounds, DataColumnKind::formula);
    addFormula(row && formulas ? formulas->cells[*row] : std::string(nameOrFormula), formulaHtml, rows);
    if (row) {
        addPoint(compounds, "Σημείο τήξης"_gr, *row, rows);
        addPoint(compounds, "Σημείο βρασμού"_gr, *row, rows);
    }
    return rows;
}

}  // namespace contentc
