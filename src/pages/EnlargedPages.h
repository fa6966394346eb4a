#pragma once

#include <string>
#include <string_view>

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// Name of the enlarged page in the cache folder.
inline constexpr std::string_view kEnlargedPage = "bigvid.htm";

/// Writes the page that shows a video large. `videoText` begins with the video's address, which a double
/// quote ends; without one nothing is written. A page that cannot be written is passed over.
void WriteEnlargedVideoPage(const platform::FileSystem& files, const std::string& enlargedPage,
                            std::string_view videoText);

/// Writes the page that shows the molecule of a prepared page large, by copying that page's molecule block
/// with other sizes. Lines that the prepared page lacks count as empty; when it cannot be opened the enlarged
/// page is left empty.
void WriteEnlargedMoleculePage(const platform::FileSystem& files, const std::string& enlargedPage,
                               const std::string& preparedPage);

}  // namespace kalyxo
