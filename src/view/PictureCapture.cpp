#include "src/view/PictureCapture.h"

#include <optional>

#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "platform/printing/PrinterDC.h"
#include "platform/windows/ChildWindows.h"
#include "platform/windows/Clipboard.h"
#include "platform/windows/Cursor.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

/// A video's window has a strip below the picture, which is left out.
struct PluginSizes {
    CSize window;
    CSize picture;
};

constexpr PluginSizes sizesOf(PluginKind kind) {
    if (kind == PluginKind::molecule) return {{340, 290}, {340, 290}};
    return {{320, 258}, {320, 240}};
}

std::optional<HWND> findPlugin(HWND browser, PluginKind kind) {
    const CSize wanted = sizesOf(kind).window;
    std::optional<HWND> found;
    EnumChildWindows(browser, [&](HWND window) {
        const CRect client = GetClientRect(window);
        if (client.Width() == wanted.cx && client.Height() == wanted.cy) found = window;
        return !found;
    });
    return found;
}

/// The picture that the viewer gives of itself, or else what is seen of it; in its nominal size, even on a
/// screen with more pixels. Nothing when the page has gone meanwhile.
std::optional<CBitmap> takePicture(HWND plugin, PluginKind kind) {
    // The viewer may not be ready yet.
    const CWaitCursor wait;
    const CSize size = sizesOf(kind).picture;
    const CBitmap own = PluginPicture(plugin);
    const CBitmap picture = own.Loaded() ? own.ResizedTo(size.cx, size.cy) : WindowPicture(plugin, size);
    return picture.Loaded() ? std::optional(picture) : std::nullopt;
}

void print(HWND plugin, PluginKind kind, std::string_view title) {
    if (!machine().printer()) {
        AfxMessageBox(LoadString(IDS_NO_PRINTER));
        return;
    }
    const std::optional<CBitmap> picture = takePicture(plugin, kind);
    std::optional<CPrinterDC> printer = picture ? CPrinterDC::Start(LoadString(IDS_APP_TITLE)) : std::nullopt;
    if (!printer) return;
    const PrintedPicture places = LayOutPrintedPicture(kind, printer->PageSize(), printer->LogPixelsY());
    printer->StretchBitmap(places.picture, *picture);
    printer->DrawTitle(title, places.title, places.letterHeight);
}

}  // namespace

PrintedPicture LayOutPrintedPicture(PluginKind kind, CSize page, int logPixelsY) {
    const CSize picture = sizesOf(kind).picture;
    const int width = page.cx / 2;
    const int height = static_cast<int>(static_cast<double>(width) * picture.cy / picture.cx);
    const int top = (page.cy - height) / 3;
    return {CRect::at(page.cx / 4, top, width, height), CRect{0, top / 3, page.cx, top}, logPixelsY / 7};
}

void PictureCapture::capture(PluginKind kind, CaptureMode mode, std::string_view title) const {
    const std::optional<HWND> plugin = findPlugin(m_browser, kind);
    if (!plugin) return;
    if (mode == CaptureMode::print) {
        print(*plugin, kind, title);
    } else if (const std::optional<CBitmap> picture = takePicture(*plugin, kind)) {
        SetClipboardBitmap(*picture);
    }
}

}  // namespace kalyxo
