#pragma once

#include <QString>

#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// The font size of the table in pixels, and the size to which it may shrink for a long text.
inline constexpr int tableFontPixels = 12;
inline constexpr int minTableFontPixels = 9;

/// A chemical formula with lowered digits; what follows a `^` is raised.
QString shownFormula(const QString& formula);

/// Numbers with a minus instead of a hyphen, and exponents as powers of ten: "-1,2E-9" becomes "−1,2·10⁻⁹".
QString shownFigures(QString figures);

/// The text of a cell on the screen, "–" when its value is not known.
QString shownCell(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit);

/// The names of a row: its cells of words, without the category.
QString shownRowName(const formats::DataSet& set, std::size_t row);

}  // namespace controls::dataanalyser
