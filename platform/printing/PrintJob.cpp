#include "platform/printing/PrintJob.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <utility>

#include "platform/machine/Machine.h"
#include "platform/printing/PrintFile.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

QString unicode(std::string_view text) { return QString::fromStdString(toUtf8(text)); }

std::unique_ptr<QPagedPaintDevice> makePdf(QIODevice& file, const PrinterConfig& page,
                                           std::string_view name) {
    auto writer = std::make_unique<QPdfWriter>(&file);
    writer->setTitle(unicode(name));
    writer->setResolution(page.logpixelsy);
    const auto inches = [&](int pixels) { return static_cast<double>(pixels) / page.logpixelsy; };
    const QPageSize size(QSizeF(inches(page.horzres), inches(page.vertres)), QPageSize::Inch, QString(),
                         QPageSize::ExactMatch);
    writer->setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
    return writer;
}

PrinterConfig pageOf(const QPrinter& printer) {
    PrinterConfig page;
    page.horzres = printer.width();
    page.vertres = printer.height();
    page.logpixelsy = printer.logicalDpiY();
    return page;
}

std::unique_ptr<QPrinter> defaultPrinter() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    return info.isNull() ? nullptr : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

}  // namespace

std::unique_ptr<QPrinter> choosePrinter(QWidget& chooser) {
    std::unique_ptr<QPrinter> printer = defaultPrinter();
    if (!printer) return nullptr;
    QPrintDialog dialog(printer.get(), &chooser);
    return dialog.exec() == QDialog::Accepted ? std::move(printer) : nullptr;
}

// NOLINTBEGIN(cppcoreguidelines-owning-memory): make_unique has no way to the private constructor
std::unique_ptr<PrintJob> PrintJob::begin(std::string_view name, QWidget* chooser) {
    if (!machine().printer()) return nullptr;
    std::unique_ptr<PrintJob> job;
    if (const PrinterConfig* pdf = pdfPrinter()) {
        auto file = std::make_unique<QSaveFile>(QString::fromStdString(nextPrintFile()));
        if (!file->open(QIODevice::WriteOnly)) {
            printFailed(file->fileName().toStdString());
            return nullptr;
        }
        auto device = makePdf(*file, *pdf, name);
        job.reset(new PrintJob(std::string(name), std::move(file), *pdf, std::move(device)));
    } else {
        std::unique_ptr<QPrinter> printer = chooser ? choosePrinter(*chooser) : defaultPrinter();
        if (!printer) return nullptr;
        printer->setDocName(unicode(name));
        const PrinterConfig page = pageOf(*printer);
        job.reset(new PrintJob(std::string(name), {}, page, std::move(printer)));
    }
    return job->painter_.isActive() ? std::move(job) : nullptr;
}
// NOLINTEND(cppcoreguidelines-owning-memory)

PrintJob::PrintJob(std::string name, std::unique_ptr<QSaveFile> file, PrinterConfig page,
                   std::unique_ptr<QPagedPaintDevice> device)
    : name_(std::move(name)), file_(std::move(file)), page_(std::move(page)), device_(std::move(device)) {
    if (painter_.begin(device_.get())) painter_.setRenderHint(QPainter::LosslessImageRendering);
}

PrintJob::~PrintJob() {
    if (!painter_.isActive()) return;
    painter_.end();
    const std::string file = file_ ? file_->fileName().toStdString() : std::string();
    if (file_ && !(file_->flush() && file_->commit())) {
        printFailed(file);
    } else {
        recordPrint(name_, 1, file);
    }
}

}  // namespace platform
