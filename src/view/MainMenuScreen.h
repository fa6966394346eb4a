#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "src/display/Picture.h"
#include "src/view/MainMenuLayout.h"

namespace kalyxo {

/// The main-menu picture with its nine hot areas and their previews.
class MainMenuScreen {
  public:
    /// Told of each picture that cannot be used; a missing file is not reported.
    using Report = std::function<void(PictureResult)>;

    /// Loads the ten pictures from `folder`, which ends with a backslash.
    void LoadPictures(const platform::FileSystem& files, std::string_view folder, const Report& report);

    /// The item under the pointer, −1 when none.
    int HotItem() const { return m_nHotItem; }
    void ClearHotItem() { m_nHotItem = -1; }

    /// Places the picture in the client area and draws it, without a hot item.
    void Paint(platform::CDC& dc, platform::CSize client);
    /// Until the next Paint no point is in a hot area.
    void Displace() { m_origin.x = kDisplaced; }
    bool Displaced() const { return m_origin.x == kDisplaced; }
    /// The item at a point of the view, −1 when none.
    int ItemAt(platform::CPoint p) const { return MainMenuLayout::ItemAt(p - m_origin); }
    /// Makes an item hot and draws its preview, connectors and the panel's frame.
    void Highlight(platform::CDC& dc, int item);

    platform::CPoint Origin() const { return m_origin; }

  private:
    static constexpr int kDisplaced = -9999;

    Picture m_background;
    std::array<Picture, MainMenuLayout::kAreas> m_previews;
    platform::CPoint m_origin{kDisplaced, 0};
    int m_nHotItem = -1;
};

}  // namespace kalyxo
