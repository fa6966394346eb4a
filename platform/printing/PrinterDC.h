#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/drawing/DC.h"

namespace platform {

class PrintJob;

/// Whether the machine can print at all.
bool HasPrinter();

/// A page of the default printer, on which one document of one page is drawn. It is printed when the context
/// goes.
class CPrinterDC {
  public:
    /// Begins a document; nothing when there is no default printer.
    static std::optional<CPrinterDC> Start(std::string_view documentName);
    CPrinterDC(CPrinterDC&&) noexcept;
    CPrinterDC& operator=(CPrinterDC&&) noexcept;
    ~CPrinterDC();

    /// The printable page in device pixels.
    CSize PageSize() const;
    /// Device pixels per inch down the page.
    int LogPixelsY() const;

    /// Draws a whole bitmap stretched to `target` without smoothing.
    void StretchBitmap(const CRect& target, const CBitmap& bitmap);
    /// Writes one line in bold black letters of so many pixels at the top of `area` and in the middle of its
    /// width.
    void DrawTitle(std::string_view text, const CRect& area, int letterHeight);

  private:
    explicit CPrinterDC(std::unique_ptr<PrintJob> job);
    std::unique_ptr<PrintJob> job_;
};

}  // namespace platform
