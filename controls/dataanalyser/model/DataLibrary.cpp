#include "controls/dataanalyser/model/DataLibrary.h"

#include <algorithm>
#include <utility>

#include "controls/dataanalyser/model/ElementSet.h"
#include "formats/DataSetFile.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

namespace {

using namespace platform::literals;
using formats::DataSetFault;

constexpr std::string_view extension = ".dat";
constexpr std::size_t maxFileSize = 32U << 20U;

std::string_view reason(DataSetFault fault) {
    switch (fault) {
        case DataSetFault::field:
        case DataSetFault::incomplete:
            return "η επικεφαλίδα είναι λανθασμένη"_gr;
        case DataSetFault::cellCount:
            return "δεν έχει τόσα κελιά όσες είναι οι στήλες"_gr;
        case DataSetFault::notANumber:
            return "υπάρχει κείμενο εκεί όπου περιμένουμε αριθμό"_gr;
        case DataSetFault::tooManyRows:
            return "οι γραμμές είναι πάρα πολλές"_gr;
        case DataSetFault::cutShort:
            return "το αρχείο τελειώνει απότομα"_gr;
    }
    return {};
}

std::string remarkOf(const std::string& file, const formats::DataSetFaultLine& fault) {
    std::string text = file + std::string(", γραμμή "_gr) + std::to_string(fault.line);
    if (!fault.name.empty()) text += std::string(" («"_gr) + fault.name + std::string("»"_gr);
    if (!fault.name.empty()) text += ')';
    return text + ": " + std::string(reason(fault.fault));
}

}  // namespace

DataLibrary::DataLibrary() { sets_.push_back(elementSet()); }

DataLibrary::DataLibrary(formats::DataSet set) : DataLibrary() { sets_.push_back(std::move(set)); }

DataLibrary::DataLibrary(const platform::FileSystem& files, const std::string& dataFolder) : DataLibrary() {
    const std::string folder = dataFolder + "datasets\\";
    const auto entries = files.listFolder(folder);
    if (!entries) return;
    for (const platform::FolderEntry& entry : *entries) {
        if (!entry.isFolder && platform::toLower(entry.name).ends_with(extension)) {
            addFile(files, folder, entry.name);
        }
    }
    std::ranges::stable_sort(sets_, {}, &formats::DataSet::number);
}

void DataLibrary::addFile(const platform::FileSystem& files, const std::string& folder,
                          const std::string& name) {
    const auto text = files.readAll(folder + name, maxFileSize);
    if (!text) {
        remarks_.push_back(name + std::string(": το αρχείο δεν διαβάζεται"_gr));
        return;
    }
    auto decoded = formats::decodeDataSet(*text);
    // When the head is wrong, its first fault tells enough.
    if (!decoded.set) decoded.faults.resize(1);
    for (const auto& fault : decoded.faults) remarks_.push_back(remarkOf(name, fault));
    if (!decoded.set) return;
    if (std::ranges::find(sets_, decoded.set->number, &formats::DataSet::number) != sets_.end()) {
        remarks_.push_back(name + std::string(": ο αριθμός του ανήκει σε άλλο αρχείο"_gr));
        return;
    }
    sets_.push_back(std::move(*decoded.set));
}

const formats::DataSet& DataLibrary::find(int number) const {
    const auto found = std::ranges::find(sets_, number, &formats::DataSet::number);
    return found == sets_.end() ? sets_.front() : *found;
}

}  // namespace controls::dataanalyser
