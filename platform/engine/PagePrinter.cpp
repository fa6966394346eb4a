#include "platform/engine/PagePrinter.h"

#include <QPageLayout>
#include <QPageRanges>
#include <QPointer>
#include <QPrinter>
#include <QSaveFile>
#include <QTimer>
#include <QWebEngineView>
#include <chrono>
#include <string>
#include <utility>

#include "platform/machine/Machine.h"
#include "platform/printing/PrintFile.h"
#include "platform/printing/PrintJob.h"
#include "platform/printing/SaveDialog.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

const QPageLayout paper(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                        QPageLayout::Millimeter);

constexpr std::chrono::milliseconds timeToLookAgain{50};

/// Pages of a PDF file as the engine writes it, where each page is an object of its own in plain text.
int countPages(const QByteArray& pdf) {
    const QByteArray page = "/Type /Page";
    int count = 0;
    for (qsizetype at = pdf.indexOf(page); at >= 0; at = pdf.indexOf(page, at + page.size())) {
        const qsizetype behind = at + page.size();
        if (behind >= pdf.size() || pdf[behind] != 's') ++count;
    }
    return count;
}

}  // namespace

PagePrinter::PagePrinter(QWebEngineView& view, std::function<bool()> isFormer)
    : QObject(&view), view_(view), isFormer_(std::move(isFormer)) {
    later_.setSingleShot(true);
    later_.setInterval(timeToLookAgain);
    connect(&later_, &QTimer::timeout, this, &PagePrinter::print);
    connect(&view, &QWebEngineView::printFinished, this, [this] {
        printing_ = false;
        // The engine still uses the printer until this signal has been handled.
        QTimer::singleShot(0, this, [this] { printer_.reset(); });
    });
    connect(&view, &QWebEngineView::renderProcessTerminated, this, &PagePrinter::giveUp);
}

PagePrinter::~PagePrinter() = default;

void PagePrinter::print() {
    if (printing_ || printer_ || !machine().printer()) return;
    if (isFormer_()) return later_.start();
    if (const PrinterConfig* const pdf = pdfPrinter()) return printWithoutPrinter(pdf->desktop);
    auto printer = choosePrinter(*view_.window());
    if (!printer) return;
    if (printer->outputFormat() == QPrinter::PdfFormat) {
        // If the engine printed into a file by itself, its pages would be pictures without text.
        printToFile(printer->outputFileName().toStdString(), printer->pageLayout(), printer->pageRanges());
    } else {
        printOnPaper(std::move(printer));
    }
}

/// Where a user sits before the machine, the user names the file.
void PagePrinter::printWithoutPrinter(bool ask) {
    const QPointer<PagePrinter> alive(this);
    const std::string chosen = ask ? askWhereToSave(*view_.window(), view_.title()) : std::string();
    if (alive && (!ask || !chosen.empty())) printToFile(chosen, paper, {});
}

void PagePrinter::printToFile(const std::string& chosen, const QPageLayout& layout,
                              const QPageRanges& ranges) {
    printing_ = true;
    file_ = chosen;
    const std::string title = fromUtf8(view_.title().toStdString());
    view_.page()->printToPdf(
        [this, title, chosen, alive = QPointer<PagePrinter>(this)](const QByteArray& pdf) {
            if (alive && !printing_) return;
            const std::string file = chosen.empty() ? nextPrintFile() : chosen;
            QSaveFile out(QString::fromStdString(file));
            if (!pdf.isEmpty() && out.open(QIODevice::WriteOnly) && out.write(pdf) == pdf.size() &&
                out.flush() && out.commit()) {
                recordPrint(title, countPages(pdf), file);
            } else {
                printFailed(file);
            }
            if (alive) printing_ = false;
        },
        layout, ranges);
}

void PagePrinter::giveUp() {
    if (!printing_ || printer_) return;
    printing_ = false;
    printFailed(file_.empty() ? nextPrintFile() : file_);
}

void PagePrinter::printOnPaper(std::unique_ptr<QPrinter> printer) {
    printer_ = std::move(printer);
    printing_ = true;
    printer_->setDocName(view_.title());
    view_.print(printer_.get());
}

}  // namespace platform
