#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/machine/MachineConfig.h"

namespace platform {

/// The machine's printer that writes PDF files; null if documents go to a printer of the desktop or there is
/// no printer.
const PrinterConfig* pdfPrinter();

/// The path for the next PDF file, in UTF-8; empty when documents go to a printer. The folder is made if it
/// is missing.
std::string nextPrintFile();

/// Records a document that other code has printed into a file of `nextPrintFile`.
void recordPrint(std::string_view name, int pages, const std::string& file);
/// Reports that a file of `nextPrintFile` could not be written.
void printFailed(const std::string& file);

/// Called for each file (its path in UTF-8) that was printed or could not be written, to tell the user. None
/// at first.
using PrintListener = std::function<void(const std::string& file, bool written)>;
void setPrintListener(PrintListener listener);

}  // namespace platform
