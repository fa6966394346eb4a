#include "platform/printing/PrintFile.h"

#include <QPrinterInfo>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/machine/Machine.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

PrintListener listener;

}  // namespace

const PrinterConfig* pdfPrinter() {
    const auto& printer = machine().printer();
    const bool onPaper = printer && printer->desktop && !QPrinterInfo::defaultPrinter().isNull();
    return printer && !onPaper ? &*printer : nullptr;
}

std::string nextPrintFile() {
    const PrinterConfig* printer = pdfPrinter();
    if (!printer) return {};
    const fs::path folder = printer->folder.empty() ? machine().folder() : printer->folder;
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    for (int number = 1;; ++number) {
        const fs::path file = folder / ("print-" + std::to_string(number) + ".pdf");
        if (!fs::exists(file, ignored)) return file.string();
    }
}

void recordPrint(std::string_view name, int pages, const std::string& file) {
    machine().trace().record(TracePrint{std::string(name), pages, fs::path(file).filename().string()});
    if (listener && !file.empty()) listener(file, true);
}

void printFailed(const std::string& file) {
    if (listener && !file.empty()) listener(file, false);
}

void setPrintListener(PrintListener given) { listener = std::move(given); }

}  // namespace platform
