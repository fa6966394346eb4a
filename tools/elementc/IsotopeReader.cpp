#include "tools/elementc/IsotopeReader.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace elementc {

namespace {

constexpr std::array<std::pair<std::string_view, double>, 5> timeUnits{
    {{"s", 1}, {"min", 60}, {"h", 3600}, {"d", 86'400}, {"y", secondsPerYear}}};

std::optional<double> decimalNumber(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && value > 0 ? std::optional(value) : std::nullopt;
}

/// Seconds for a text such as "12.3 y".
std::optional<double> secondsOf(std::string_view text) {
    const std::size_t blank = std::min(text.find(' '), text.size());
    const auto number = decimalNumber(text.substr(0, blank));
    const std::string_view unit = text.substr(std::min(blank + 1, text.size()));
    const auto* found = std::ranges::find(timeUnits, unit, &std::pair<std::string_view, double>::first);
    if (!number || found == timeUnits.end()) return std::nullopt;
    return *number * found->second;
}

/// Reads one property into the isotope.
void readValue(QXmlStreamReader& reader, IsotopeKey& key, IsotopeValues& values) {
    const auto attributes = reader.attributes();
    const QString name = attributes.value(QLatin1String("dictRef")).toString();
    const bool inYears = attributes.value(QLatin1String("units")) == QLatin1String("units:y");
    const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
    if (name == QLatin1String("bo:atomicNumber")) key.element = text.toInt();
    if (name == QLatin1String("bo:relativeAbundance")) values.abundance = text.toStdString();
    if (name == QLatin1String("bo:halfLife"))
        values.halfLife = text.toDouble() * (inYears ? secondsPerYear : 1);
}

void readIsotope(QXmlStreamReader& reader, Isotopes& isotopes) {
    IsotopeKey key{0, reader.attributes().value(QLatin1String("number")).toInt()};
    IsotopeValues values;
    while (reader.readNextStartElement()) readValue(reader, key, values);
    if (key.element >= 1 && key.element <= elementCount) isotopes.emplace(key, std::move(values));
}

void readLists(QXmlStreamReader& reader, Isotopes& isotopes) {
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("isotope")) {
            readIsotope(reader, isotopes);
        } else if (reader.name() == QLatin1String("isotopeList")) {
            readLists(reader, isotopes);
        } else {
            reader.skipCurrentElement();
        }
    }
}

Result<void> correct(Isotopes& isotopes, const SourceRow& correction) {
    const std::string_view name = field(correction.fields, "field");
    const std::string_view value = field(correction.fields, "value");
    const auto massNumber = decimalNumber(field(correction.fields, "mass number"));
    const IsotopeKey key{numberOf(correction.fields), static_cast<int>(massNumber.value_or(0))};
    if (key.massNumber < key.element) return Failure{correction.place + ": no mass number"};
    if (name == "abundance") {
        isotopes[key].abundance = value;
    } else if (name != "half-life") {
        return Failure{correction.place + ": no field \"" + std::string(name) + '"'};
    } else if (const auto seconds = secondsOf(value); seconds || value.empty()) {
        isotopes[key].halfLife = seconds.value_or(0);
    } else {
        return Failure{correction.place + ": no half-life: " + std::string(value)};
    }
    return {};
}

bool namesItsElement(const SourceRow& correction, std::span<const SourceRow> own) {
    const int number = numberOf(correction.fields);
    const auto row =
        std::ranges::find(own, number, [](const SourceRow& each) { return numberOf(each.fields); });
    return number > 0 && row != own.end() &&
           field(row->fields, "symbol") == field(correction.fields, "symbol");
}

}  // namespace

Result<Isotopes> readIsotopes(std::string_view xml, const std::string& file) {
    QXmlStreamReader reader(QByteArray(xml.data(), static_cast<qsizetype>(xml.size())));
    Isotopes isotopes;
    if (reader.readNextStartElement()) readLists(reader, isotopes);
    if (!reader.hasError()) return isotopes;
    return Failure{file + ':' + std::to_string(reader.lineNumber()) + ": " +
                   reader.errorString().toStdString()};
}

Result<Isotopes> correctIsotopes(Isotopes isotopes, std::span<const SourceRow> corrections,
                                 std::span<const SourceRow> own) {
    for (const SourceRow& correction : corrections) {
        if (!namesItsElement(correction, own))
            return Failure{correction.place + ": number and symbol do not agree"};
        if (const auto done = correct(isotopes, correction); !done) return done.failure();
    }
    return isotopes;
}

}  // namespace elementc
