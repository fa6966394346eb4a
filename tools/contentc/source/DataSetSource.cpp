#include "tools/contentc/source/DataSetSource.h"

#include <set>
#include <string>

#include "formats/DataSetFile.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {
namespace {

std::string message(const formats::DataSetFaultLine& fault) {
    using enum formats::DataSetFault;
    switch (fault.fault) {
        case field:
            return "no field with a right value";
        case incomplete:
            return "the head needs 'number', 'title', a first column of words, a column of numbers, and a "
                   "'graph' of such";
        case cellCount:
            return "the row of " + inQuotes(fault.name) + " has not as many cells as there are columns";
        case notANumber:
            return "the row of " + inQuotes(fault.name) + " has words where a number belongs";
        case tooManyRows:
            return "the row of " + inQuotes(fault.name) + " is one too many";
        case cutShort:
            return "the row of " + inQuotes(fault.name) + " is cut short";
    }
    return {};
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
        for (const auto& fault : decoded.faults) diagnostics.error(file.place(fault.line), message(fault));
        if (decoded.set && !numbers.insert(decoded.set->number).second) {
            diagnostics.error(file.place(), "another data set has the number " +
                                                std::to_string(decoded.set->number) + " too");
        }
        outputs.add("datasets\\" + file.stem() + ".dat", joined(lines, "\r\n"), file.place(), diagnostics);
    }
}

}  // namespace contentc
