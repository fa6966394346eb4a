#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/machine/MachineConfig.h"

class QPrinter;
class QSaveFile;
class QWidget;

namespace platform {

/// Whether the machine can print at all.
bool hasPrinter();

/// A document on its way to the machine's printer: a PDF file (`print-1.pdf`, `print-2.pdf`, …) where the
/// machine says what the page is like, else the desktop's default printer. What was printed is recorded in
/// the trace when the job ends.
class PrintJob {
  public:
    /// Begins a document with its first page; `name` is code page 1253. Nothing when there is no printer or
    /// it cannot be started. With `chooser` the user may choose another printer of the desktop first, in a
    /// dialog over that window, and nothing is begun when he gives up.
    static std::unique_ptr<PrintJob> begin(std::string_view name, QWidget* chooser = nullptr);
    ~PrintJob();
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// Draws on the page in device pixels from its printable corner.
    QPainter& painter() { return painter_; }
    /// The printable page in device pixels, and pixels per inch down the page.
    const PrinterConfig& page() const { return page_; }

  private:
    PrintJob(std::string name, std::unique_ptr<QSaveFile> file, PrinterConfig page,
             std::unique_ptr<QPagedPaintDevice> device);

    std::string name_;
    std::unique_ptr<QSaveFile> file_;  // null on a printer of the desktop
    PrinterConfig page_;
    std::unique_ptr<QPagedPaintDevice> device_;
    QPainter painter_;
};

/// The path at which the next printed PDF file is to be written, in UTF-8; empty where it is printed on
/// paper. Its folder is made if there is none.
std::string nextPrintFile();

/// Records a document that something else printed to a file of `nextPrintFile`.
void recordPrint(std::string_view name, int pages, const std::string& file);
/// A file of `nextPrintFile` could not be written.
void printFailed(const std::string& file);

/// Who tells the user of each file that is printed (its path in UTF-8), or could not be; nobody at first.
using PrintListener = std::function<void(const std::string& file, bool written)>;
void setPrintListener(PrintListener listener);

/// The desktop's default printer, after the user had his choice in a dialog over `chooser`; null when there
/// is none or he gave up.
std::unique_ptr<QPrinter> choosePrinter(QWidget& chooser);

}  // namespace platform
