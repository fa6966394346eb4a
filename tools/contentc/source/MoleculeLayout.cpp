#include "tools/contentc/source/MoleculeLayout.h"

#include <algorithm>
#include <string_view>

namespace contentc {
namespace {

// Counted from 1.
constexpr std::size_t kEmbedLine = 13;
constexpr std::size_t kSettingLine = 15;
constexpr std::string_view kSetting = "true";
constexpr char kMoleculeMarker = '\x03';

bool isEmbedLine(const std::string& line) {
    const auto has = [&line](std::string_view text) { return line.find(text) != std::string::npos; };
    return has("<EMBED ") && has("340") && has("290");
}

// The program cuts the line at the first "true".
bool isSettingLine(const std::string& line) {
    return line.ends_with(kSetting) && line.find(kSetting) == line.size() - kSetting.size();
}

bool endsView(const TextLine& line) { return line.text.starts_with("</TD>"); }

class LayoutCheck {
  public:
    LayoutCheck(const std::vector<TextLine>& lines, const SourcePlace& page, Diagnostics& diagnostics)
        : m_lines(lines), m_page(page), m_diagnostics(diagnostics) {}

    void run() {
        require(kEmbedLine, isEmbedLine,
                "must hold the '<EMBED ' of the molecule with the sizes 340 and 290");
        require(kSettingLine, isSettingLine, "must end in its only 'true'");
        const auto afterSetting =
            m_lines.begin() + static_cast<std::ptrdiff_t>(std::min(kSettingLine, m_lines.size()));
        if (std::none_of(afterSetting, m_lines.end(), endsView)) {
            m_diagnostics.error(m_page, "no line after line 15 of the finished page begins with '</TD>'");
        }
        for (const TextLine& line : m_lines) checkQuotes(line);
    }

  private:
    void require(std::size_t number, bool (*isRight)(const std::string&), const std::string& rule) {
        const TextLine line = number <= m_lines.size() ? m_lines[number - 1] : TextLine{"", m_page};
        if (isRight(line.text)) return;
        m_diagnostics.error(line.place,
                            "line " + std::to_string(number) + " of the finished molecule page " + rule);
    }

    void checkQuotes(const TextLine& line) {
        const std::size_t marker = line.text.find(kMoleculeMarker);
        if (marker == std::string::npos || line.text.find('"') + 1 == marker) return;
        m_diagnostics.error(line.place, "the molecule file must be the first text in quotes on its line");
    }

    const std::vector<TextLine>& m_lines;
    const SourcePlace& m_page;
    Diagnostics& m_diagnostics;
};

}  // namespace

void checkMoleculeLayout(const std::vector<TextLine>& lines, const SourcePlace& page,
                         Diagnostics& diagnostics) {
    LayoutCheck(lines, page, diagnostics).run();
}

}  // namespace contentc
