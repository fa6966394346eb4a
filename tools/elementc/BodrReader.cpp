#include "tools/elementc/BodrReader.h"

#include <QXmlStreamReader>
#include <array>
#include <utility>

namespace elementc {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> fieldNames{{
    {"bo:atomicNumber", "number"},
    {"bo:symbol", "symbol"},
    {"bo:name", "name"},
    {"bo:electronegativityPauling", "electronegativity"},
    {"bo:ionization", "ionisation"},
    {"bo:electronAffinity", "affinity"},
    {"bo:meltingpoint", "melting"},
    {"bo:boilingpoint", "boiling"},
    {"bo:discoveryDate", "discovered"},
    {"bo:electronicConfiguration", "configuration"},
}};

std::string_view ourName(const std::string& reference) {
    for (const auto& [theirs, ours] : fieldNames) {
        if (theirs == reference) return ours;
    }
    return {};
}

/// Reads one property. Labels have their text in an attribute.
void readProperty(QXmlStreamReader& reader, Record& record) {
    const auto attributes = reader.attributes();
    const std::string_view name =
        ourName(attributes.value(QLatin1String("dictRef")).toString().toStdString());
    const QString label = attributes.value(QLatin1String("value")).toString();
    const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
    const QString& value = label.isEmpty() ? text : label;
    if (!name.empty() && !value.isEmpty()) record.emplace(name, value.toStdString());
}

Record readAtom(QXmlStreamReader& reader) {
    Record record;
    while (reader.readNextStartElement()) readProperty(reader, record);
    return record;
}

void keep(Record record, Records& records) {
    const int number = QByteArray::fromStdString(record["number"]).toInt();
    record.erase("number");
    // The list begins with a dummy element that has the number 0.
    if (number >= 1 && number <= elementCount) records.emplace(number, std::move(record));
}

}  // namespace

Result<Records> readBodr(std::string_view xml, const std::string& file) {
    QXmlStreamReader reader(QByteArray(xml.data(), static_cast<qsizetype>(xml.size())));
    Records records;
    if (reader.readNextStartElement()) {
        while (reader.readNextStartElement()) {
            if (reader.name() == QLatin1String("atom")) {
                keep(readAtom(reader), records);
            } else {
                reader.skipCurrentElement();
            }
        }
    }
    if (!reader.hasError()) return records;
    return Failure{file + ':' + std::to_string(reader.lineNumber()) + ": " +
                   reader.errorString().toStdString()};
}

}  // namespace elementc
