#include "controls/dataanalyser/look/ShownText.h"

#include <QRegularExpression>
#include <QStringList>

#include "controls/common/QtText.h"

namespace controls::dataanalyser {

namespace {

QChar raised(QChar c) {
    if (c == u'+') return QChar(0x207A);
    if (c == u'-') return QChar(0x207B);
    if (c == u'1') return QChar(0xB9);
    if (c == u'2' || c == u'3') return {static_cast<char16_t>(0xB2 + c.digitValue() - 2)};
    return c.isDigit() ? QChar(static_cast<char16_t>(0x2070 + c.digitValue())) : c;
}

QChar lowered(QChar digit) { return {static_cast<char16_t>(0x2080 + digit.digitValue())}; }

}  // namespace

QString shownFormula(const QString& formula) {
    QString shown;
    bool up = false;
    for (const QChar c : formula) {
        if (c == u'^') {
            up = true;
            continue;
        }
        const QChar before = shown.isEmpty() ? QChar() : shown.back();
        const bool down = c.isDigit() && (before.isLetter() || before == u')' || before.unicode() >= 0x2080);
        shown += up ? raised(c) : down ? lowered(c) : c;
    }
    return shown;
}

QString shownFigures(QString figures) {
    static const QRegularExpression exponent(QStringLiteral("[eE]([+-]?[0-9]+)"));
    for (auto found = exponent.match(figures); found.hasMatch(); found = exponent.match(figures)) {
        const QString power = QStringLiteral("·10^%1").arg(found.captured(1).toInt());
        figures.replace(found.capturedStart(), found.capturedLength(), shownFormula(power));
    }
    return withMinus(std::move(figures));
}

QString shownCell(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit) {
    const std::string text = cellText(column, row, unit);
    if (text.empty()) return toQt(unknownText());
    if (column.kind == formats::DataColumnKind::formula) return shownFormula(toQt(text));
    return column.isNumber() ? shownFigures(toQt(text)) : toQt(text);
}

QString shownRowName(const formats::DataSet& set, std::size_t row) {
    QStringList names;
    for (const formats::DataColumn& column : set.columns) {
        const bool isName =
            column.kind == formats::DataColumnKind::text || column.kind == formats::DataColumnKind::formula;
        if (isName && !column.cells[row].empty()) names += shownCell(column, row, TemperatureUnit::kelvin);
    }
    return names.join(QStringLiteral(", "));
}

}  // namespace controls::dataanalyser
