#include "tools/contentc/source/MoleculeLayout.h"

#include <algorithm>

#include "tools/contentc/source/MoleculeMessages.h"

namespace contentc {
namespace {

// Lines of the page, counted from 1.
constexpr std::size_t embedLine = 13;
constexpr std::size_t settingLine = 15;
constexpr std::string_view setting = "true";

bool isEmbedLine(const std::string& line) {
    const auto has = [&line](std::string_view text) { return line.find(text) != std::string::npos; };
    return has("<EMBED ") && has("340") && has("290");
}

// The program cuts the line at the first "true".
bool isSettingLine(const std::string& line) {
    return line.ends_with(setting) && line.find(setting) == line.size() - setting.size();
}

bool endsView(const TextLine& line) { return line.text.starts_with("</TD>"); }

class LayoutCheck {
  public:
    LayoutCheck(const std::vector<TextLine>& lines, const SourcePlace& page, Diagnostics& diagnostics)
        : lines_(lines), page_(page), diagnostics_(diagnostics) {}

    void run() {
        require(embedLine, isEmbedLine, say::moleculeEmbedLine);
        require(settingLine, isSettingLine, say::moleculeSettingLine);
        const auto afterSetting =
            lines_.begin() + static_cast<std::ptrdiff_t>(std::min(settingLine, lines_.size()));
        if (std::none_of(afterSetting, lines_.end(), endsView)) {
            diagnostics_.error(page_, say::noEndOfMoleculeView);
        }
        for (const TextLine& line : lines_) checkQuotes(line);
    }

  private:
    void require(std::size_t number, bool (*isRight)(const std::string&), const Message& rule) {
        const TextLine line = number <= lines_.size() ? lines_[number - 1] : TextLine{"", page_};
        if (isRight(line.text)) return;
        diagnostics_.error(line.place, rule, {number});
    }

    void checkQuotes(const TextLine& line) {
        const std::size_t marker = line.text.find(moleculeMarker);
        if (marker == std::string::npos || line.text.find('"') + 1 == marker) return;
        diagnostics_.error(line.place, say::moleculeFileNotFirst);
    }

    const std::vector<TextLine>& lines_;
    const SourcePlace& page_;
    Diagnostics& diagnostics_;
};

}  // namespace

void checkMoleculeLayout(const std::vector<TextLine>& lines, const SourcePlace& page,
                         Diagnostics& diagnostics) {
    LayoutCheck(lines, page, diagnostics).run();
}

}  // namespace contentc
