#include "platform/printing/PrinterDC.h"

#include <QFont>
#include <QImage>
#include <utility>

#include "platform/printing/PrintJob.h"
#include "platform/qt/QtConvert.h"

namespace platform {

namespace {

constexpr const char* greekFace = "Liberation Sans";

}  // namespace

CPrinterDC::CPrinterDC(std::unique_ptr<PrintJob> job) : job_(std::move(job)) {}

CPrinterDC::CPrinterDC(CPrinterDC&&) noexcept = default;

CPrinterDC& CPrinterDC::operator=(CPrinterDC&&) noexcept = default;

CPrinterDC::~CPrinterDC() = default;

std::optional<CPrinterDC> CPrinterDC::Start(std::string_view documentName) {
    std::unique_ptr<PrintJob> job = PrintJob::begin(documentName);
    return job ? std::optional(CPrinterDC(std::move(job))) : std::nullopt;
}

CSize CPrinterDC::PageSize() const { return {job_->page().horzres, job_->page().vertres}; }

int CPrinterDC::LogPixelsY() const { return job_->page().logpixelsy; }

void CPrinterDC::StretchBitmap(const CRect& target, const CBitmap& bitmap) {
    if (bitmap.Loaded()) job_->painter().drawImage(toQt(target), bitmap.Image());
}

void CPrinterDC::DrawTitle(std::string_view text, const CRect& area, int letterHeight) {
    QFont font(QString::fromLatin1(greekFace));
    font.setPixelSize(letterHeight);
    font.setBold(true);
    QPainter& painter = job_->painter();
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(toQt(area), Qt::AlignTop | Qt::AlignHCenter | Qt::TextSingleLine, toQt(text));
}

}  // namespace platform
