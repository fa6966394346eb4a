#include "src/app/SplashDlg.h"

#include <cstring>

#include "platform/drawing/BitmapResource.h"
#include "platform/framework/Wait.h"
#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/WindowDC.h"
#include "src/display/BitmapPalette.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr CSize kPicture{640, 480};
/// The picture and the frame around it.
constexpr CSize kWindow{644, 484};
/// The part of the picture that is drawn when the background is erased; painting draws the whole.
constexpr CSize kErased{400, 375};

/// The picture as a bitmap; an empty bitmap when the resource is missing or is not a picture.
CBitmap loadPicture(UINT id) {
    CBitmap bitmap;
    const std::optional<BitmapResource> resource = FindBitmapResource(id);
    if (!resource) return bitmap;
    const auto bytes = resource->bytes;
    std::uint32_t colours = 0;
    const auto palette = CreatePaletteFromHeader(bytes, colours);
    BITMAPINFOHEADER header;
    if (bytes.size() < sizeof(header)) return bitmap;
    std::memcpy(&header, bytes.data(), sizeof(header));
    const std::size_t pixels = header.biSize + std::size_t{colours} * sizeof(PALETTEENTRY);
    if (pixels > bytes.size()) return bitmap;
    bitmap.CreateDIBitmap(header, palette.value_or(std::vector<PALETTEENTRY>()), bytes.subspan(pixels),
                          resource->scale);
    return bitmap;
}

}  // namespace

const CRuntimeClass CSplashDlg::runtimeClass{"CSplashDlg"};

CSplashDlg::CSplashDlg() : CDialog(IDD_SPLASH), m_nBitmapId(IDB_SPLASH) {
    if (!Create()) return;
    const ScreenConfig& screen = machine().screen();
    MoveWindow(CRect::at(screen.left + (screen.width - kWindow.cx) / 2,
                         screen.top + (screen.height - kWindow.cy) / 2, kWindow.cx, kWindow.cy));
    ShowWindow(SW_SHOW);
    SendMessage(WM_PAINT);
    UpdateWindow(*this);
}

const MessageMap* CSplashDlg::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {OnMessage<WM_PAINT, &CSplashDlg::OnPaint>(),
                                                   OnMessage<WM_ERASEBKGND, &CSplashDlg::OnEraseBkgnd>()};
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

void CSplashDlg::OnPaint() {
    CPaintDC dc(*this);
    drawPicture(dc, kPicture);
}

bool CSplashDlg::OnEraseBkgnd(CDC& dc) {
    drawPicture(dc, kErased);
    return true;
}

void CSplashDlg::drawPicture(CDC& dc, CSize part) {
    if (!m_picture.Loaded()) m_picture = loadPicture(m_nBitmapId);
    CDC memory = CDC::CreateCompatibleDC(dc);
    memory.SelectObject(m_picture);
    dc.BitBlt(0, 0, part.cx, part.cy, memory, 0, 0);
}

}  // namespace kalyxo
