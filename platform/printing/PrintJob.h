#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <memory>
#include <string>
#include <string_view>

#include "platform/machine/MachineConfig.h"

class QPrinter;
class QSaveFile;
class QWidget;

namespace platform {

/// A document that is being printed: into a PDF file (`print-1.pdf`, `print-2.pdf`, …) if the machine's
/// settings describe the page, else on the default printer of the desktop. When the job ends it is recorded
/// in the trace.
class PrintJob {
  public:
    /// Begins a document with its first page; `name` is code page 1253. Null when there is no printer or it
    /// cannot be started. With `chooser` the user may first choose another printer of the desktop, in a
    /// dialog over that window; null if the user cancels.
    static std::unique_ptr<PrintJob> begin(std::string_view name, QWidget* chooser = nullptr);
    ~PrintJob();
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// Draws on the page, in device pixels from the corner of its printable area.
    QPainter& painter() { return painter_; }
    /// The size of the printable page in device pixels, and its vertical resolution in pixels per inch.
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

/// The printer that the user chooses in a dialog over `chooser`, at first the desktop's default printer. Null
/// when the desktop has no printer or the user cancels.
std::unique_ptr<QPrinter> choosePrinter(QWidget& chooser);

}  // namespace platform
