#pragma once

#include <QString>

#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// How high the letters of a table are, in pixels, and how low they become so that a text fits.
inline constexpr int tableFontPixels = 12;
inline constexpr int smallestTableFontPixels = 9;

/// A chemical formula with its digits lowered and what follows `^` raised.
QString shownFormula(const QString& formula);

/// Numbers with a true minus and, for an exponent, a power of ten: "-1,2E-9" is "−1,2·10⁻⁹".
QString shownFigures(QString figures);

/// What a cell looks like on the screen; "–" when it is not known.
QString shownCell(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit);

/// The row's names: its cells of words, but for the group.
QString shownRowName(const formats::DataSet& set, std::size_t row);

}  // namespace controls::dataanalyser
