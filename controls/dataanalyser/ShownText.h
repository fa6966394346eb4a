#pragma once

#include <QString>

#include "controls/dataanalyser/TableCells.h"

namespace controls::dataanalyser {

/// A chemical formula with its digits lowered and what follows `^` raised.
QString shownFormula(const QString& formula);

/// Numbers with a true minus and, for an exponent, a power of ten: "-1,2E-9" is "−1,2·10⁻⁹".
QString shownFigures(QString figures);

/// What a cell looks like on the screen; "–" when it is not known.
QString shownCell(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit);

/// The row's names: its cells of words, but for the group.
QString shownRowName(const formats::DataSet& set, std::size_t row);

}  // namespace controls::dataanalyser
