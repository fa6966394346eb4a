#include "tools/contentc/source/Layers.h"

#include <algorithm>
#include <string>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/FileMessages.h"
#include "tools/contentc/source/IgnoredFiles.h"
#include "tools/contentc/source/SourceFile.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view installedName = "kalyxo";

fs::path realPath(const fs::path& path) {
    std::error_code failed;
    fs::path real = fs::weakly_canonical(fs::absolute(path, failed), failed);
    return real.has_filename() ? real : real.parent_path();
}

class LayerFinder {
  public:
    LayerFinder(const SourceFolders& folders, Diagnostics& diagnostics)
        : folders_(folders), diagnostics_(diagnostics) {}

    std::vector<Layer> run() {
        add({folders_.content, false, folders_.images, folders_.media});
        if (isFolder(folders_.installed.sources) && !isKnown(folders_.installed.sources)) {
            layers_.push_back(installedLayer());
            layers_.back().onlyEquipment = true;
        }
        return std::move(layers_);
    }

  private:
    bool isKnown(const fs::path& folder) const {
        return std::ranges::any_of(layers_, [real = realPath(folder)](const Layer& layer) {
            return realPath(layer.folder) == real;
        });
    }

    Layer installedLayer() const {
        const InstalledContent& installed = folders_.installed;
        return {installed.sources, false, {installed.data / "images"}, {installed.data / "video"}};
    }

    /// Adds a layer and those that it is built on.
    void add(const Layer& layer) {
        const fs::path real = realPath(layer.folder);
        layers_.push_back(layer);
        open_.push_back(real);
        if (isThere(real / layerFileName)) readBases(layer.folder);
        open_.pop_back();
    }

    void readBases(const fs::path& folder) {
        const auto file = readSourceFile(folder / layerFileName, diagnostics_);
        if (!file) return;
        for (const TextLine& line : readLines(*file, diagnostics_)) {
            const std::string_view text = trimmed(line.text);
            if (!text.empty() && !text.starts_with('#')) readBase(text, line.place, folder);
        }
    }

    void readBase(std::string_view line, const SourcePlace& place, const fs::path& folder) {
        const std::size_t colon = line.find(':');
        const std::string name = platform::toUtf8(trimmed(line.substr(0, colon)));
        const std::string value =
            colon == std::string_view::npos ? "" : platform::toUtf8(trimmed(line.substr(colon + 1)));
        if (value.empty()) {
            diagnostics_.error(place, say::notALayerLine);
        } else if (name != "base" && name != "βάση") {
            diagnostics_.error(place, say::unknownLayerField, {name}).suggestNearest(name, {"βάση", "base"});
        } else if (value == installedName) {
            addInstalled(place);
        } else {
            addBase(fs::path(value), place, folder);
        }
    }

    void addInstalled(const SourcePlace& place) {
        if (!isFolder(folders_.installed.sources)) {
            diagnostics_.error(place, say::noInstalledContent);
        } else if (!isKnown(folders_.installed.sources)) {
            add(installedLayer());
        }
    }

    void addBase(const fs::path& base, const SourcePlace& place, const fs::path& folder) {
        const fs::path path = base.is_absolute() ? base : (folder / base).lexically_normal();
        if (!isFolder(path)) {
            diagnostics_.error(place, say::noSuchLayer, {path.generic_string()});
        } else if (std::ranges::find(open_, realPath(path)) != open_.end()) {
            diagnostics_.error(place, say::layersGoRound, {base.generic_string()});
        } else if (!isKnown(path)) {
            add({path, false, {}, {}});
        }
    }

    const SourceFolders& folders_;
    Diagnostics& diagnostics_;
    std::vector<Layer> layers_;
    /// The folders whose bases are being read, outermost first.
    std::vector<fs::path> open_;
};

}  // namespace

std::vector<Layer> findLayers(const SourceFolders& folders, Diagnostics& diagnostics) {
    return LayerFinder(folders, diagnostics).run();
}

}  // namespace contentc
