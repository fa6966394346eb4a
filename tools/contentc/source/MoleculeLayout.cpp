#include "tools/contentc/source/MoleculeLayout.h"

#include <algorithm>

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
        require(embedLine, isEmbedLine, "must hold the '<EMBED ' of the molecule with the sizes 340 and 290");
        require(settingLine, isSettingLine, "must end in its only 'true'");
        const auto afterSetting =
            lines_.begin() + static_cast<std::ptrdiff_t>(std::min(settingLine, lines_.size()));
        if (std::none_of(afterSetting, lines_.end(), endsView)) {
            diagnostics_.error(page_, "no line after line 15 of the finished page begins with '</TD>'");
        }
        for (const TextLine& line : lines_) checkQuotes(line);
    }

  private:
    void require(std::size_t number, bool (*isRight)(const std::string&), const std::string& rule) {
        const TextLine line = number <= lines_.size() ? lines_[number - 1] : TextLine{"", page_};
        if (isRight(line.text)) return;
        diagnostics_.error(line.place,
                           "line " + std::to_string(number) + " of the finished molecule page " + rule);
    }

    void checkQuotes(const TextLine& line) {
        const std::size_t marker = line.text.find(moleculeMarker);
        if (marker == std::string::npos || line.text.find('"') + 1 == marker) return;
        diagnostics_.error(line.place, "the molecule file must be the first text in quotes on its line");
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
