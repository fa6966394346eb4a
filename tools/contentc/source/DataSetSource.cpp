#include "tools/contentc/source/DataSetSource.h"

#include <set>
#include <string>

#include "formats/DataSetFile.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/DataMessages.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {
namespace {

const Message& messageOf(formats::DataSetFault fault) {
    using enum formats::DataSetFault;
    switch (fault) {
        case incomplete:
            return say::dataHeadIsIncomplete;
        case cellCount:
            return say::wrongCellCount;
        case notANumber:
            return say::wordsForNumber;
        case tooManyRows:
            return say::rowTooMany;
        case cutShort:
            return say::rowIsCutShort;
        case field:
            break;
    }
    return say::wrongDataField;
}

std::string joined(const std::vector<TextLine>& lines, std::string_view lineEnd) {
    std::string text;
    for (const TextLine& line : lines) text.append(line.text).append(lineEnd);
    return text;
}

}  // namespace

void addDataSets(const std::vector<SourceFile>& files, OutputFiles& outputs, Diagnostics& diagnostics) {
    std::set<std::int16_t> numbers;
    for (const SourceFile& file : files) {
        const auto lines = readLines(file, diagnostics);
        const auto decoded = formats::decodeDataSet(joined(lines, "\n"));
        for (const auto& fault : decoded.faults) {
            diagnostics.error(file.place(fault.line), messageOf(fault.fault), {platform::toUtf8(fault.name)});
        }
        if (decoded.set && !numbers.insert(decoded.set->number).second) {
            diagnostics.error(file.place(), say::dataNumberIsTaken, {decoded.set->number});
        }
        outputs.add("datasets\\" + file.stem() + ".dat", joined(lines, "\r\n"), file.place(), diagnostics);
    }
}

}  // namespace contentc
