#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/drawing/Bitmap.h"

namespace platform {

class PrintJob;

/// A page of the default printer: a document of one page is drawn on it. The destructor prints it.
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

    /// Draws the whole bitmap scaled to `target`, without smoothing.
    void StretchBitmap(const CRect& target, const CBitmap& bitmap);
    /// Writes one line in bold black letters, `letterHeight` pixels high, centred at the top of `area`.
    void DrawTitle(std::string_view text, const CRect& area, int letterHeight);

  private:
    explicit CPrinterDC(std::unique_ptr<PrintJob> job);
    std::unique_ptr<PrintJob> job_;
};

}  // namespace platform
