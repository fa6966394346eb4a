#include "src/view/MainMenuScreen.h"

#include <string>

namespace kalyxo {

using platform::CDC;
using platform::CPoint;
using platform::CRect;

namespace {

constexpr platform::COLORREF kHotColour = platform::RGB(58, 122, 160);
/// Items in the order in which their pictures are loaded.
constexpr std::array kLoadOrder = {7, 8, 0, 1, 3, 2, 4, 5, 6};

}  // namespace

void MainMenuScreen::LoadPictures(const platform::FileSystem& files, std::string_view folder,
                                  const Report& report) {
    const auto load = [&](Picture& picture, std::string_view name) {
        const PictureResult result =
            picture.LoadPicture(files, std::string(folder).append(name).append(".bmp"));
        if (result != PictureResult::loaded && result != PictureResult::missing) report(result);
    };
    load(m_background, MainMenuLayout::kPicture);
    for (const int item : kLoadOrder) {
        const auto index = static_cast<std::size_t>(item);
        load(m_previews[index], MainMenuLayout::Areas()[index].picture);
    }
}

void MainMenuScreen::Paint(CDC& dc, platform::CSize client) {
    m_origin = MainMenuLayout::Origin(client, m_background.Size());
    m_background.DrawPicture(dc, m_origin.x, m_origin.y);
}

void MainMenuScreen::Highlight(CDC& dc, int item) {
    m_nHotItem = item;
    const auto index = static_cast<std::size_t>(item);
    const CPoint corner = m_origin + MainMenuLayout::kPreview;
    m_previews[index].DrawPicture(dc, corner.x, corner.y);
    for (const CRect& line : MainMenuLayout::Areas()[index].connectors) {
        dc.FillSolidRect(line.offset(m_origin), kHotColour);
    }
    for (const CRect& side : MainMenuLayout::Frame()) dc.FillSolidRect(side.offset(m_origin), kHotColour);
}

}  // namespace kalyxo
