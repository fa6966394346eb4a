#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The types of file that pages embed and that a viewer page shows in their frame, by file extension.
/// The viewer page is an HTML document among the program's resources. In its frame, `location` is the
/// address of the embedded file; the file itself comes from that path with the query `?raw`. The
/// attributes of the page's EMBED element, by names in lower case, are the parameters of the query.
class PluginTypes {
  public:
    static PluginTypes& instance();

    /// Names the viewer page (resource path such as ":/plugins/video.html") for an extension without
    /// its full stop. To be done before the first browser is made.
    void add(std::string_view extension, std::string_view page);

    /// The viewer page for a file, or null when its type is not embedded.
    const std::string* pageFor(std::string_view path) const;

    /// All extensions, in lower case.
    std::vector<std::string> extensions() const;

  private:
    PluginTypes() = default;

    std::map<std::string, std::string, std::less<>> pages_;
};

}  // namespace platform
