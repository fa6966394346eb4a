#include "src/pages/EnlargedPages.h"

#include <array>
#include <optional>

#include "platform/files/FileSystem.h"
#include "platform/files/TextReader.h"
#include "platform/files/TextWriter.h"

namespace kalyxo {

using platform::FileSystem;
using platform::TextReader;
using platform::TextWriter;

namespace {

/// Line numbers of a prepared molecule page.
constexpr int kLinesBeforeEmbed = 12;

/// Reads lines of at most 9999 bytes.
class Lines {
  public:
    explicit Lines(TextReader reader) : m_reader(std::move(reader)) {}

    /// The next line with its newline, empty at the end of the page.
    std::string Next() {
        const std::size_t length = m_reader.readLine(m_buffer.data(), m_buffer.size());
        return {m_buffer.data(), length};
    }

  private:
    TextReader m_reader;
    std::array<char, 10000> m_buffer;
};

void replaceFirst(std::string& line, std::string_view what, std::string_view with) {
    const std::size_t at = line.find(what);
    if (at != std::string::npos) line.replace(at, what.size(), with);
}

/// The line with the sizes of the small view made large.
std::string enlargedEmbed(std::string line) {
    replaceFirst(line, "290", "498");
    replaceFirst(line, "340", "640");
    return line;
}

/// The line with its setting switched off.
std::string switchedOff(std::string line) {
    const std::size_t at = line.find("true");
    if (at != std::string::npos) line.replace(at, std::string::npos, "false");
    return line;
}

void copyMoleculeBlock(Lines& page, TextWriter& enlarged) {
    enlarged.write(page.Next());
    for (int line = 2; line <= kLinesBeforeEmbed; ++line) page.Next();
    enlarged.write("<BODY BGCOLOR=\"#000000\">\n");
    enlarged.write(enlargedEmbed(page.Next()));
    enlarged.write(page.Next());
    enlarged.write(switchedOff(page.Next()));
    enlarged.write("\n");
    for (std::string line = page.Next(); !line.empty() && !line.starts_with("</TD>"); line = page.Next()) {
        enlarged.write(line);
    }
    enlarged.write("</BODY></HTML>\n");
}

}  // namespace

void WriteEnlargedVideoPage(const FileSystem& files, const std::string& enlargedPage,
                            std::string_view videoText) {
    const std::size_t quote = videoText.find('"');
    if (quote == std::string_view::npos) return;
    std::optional<TextWriter> page = TextWriter::open(files, enlargedPage);
    if (!page) return;
    page->write("<HTML>\n<BODY BGCOLOR=\"#c0c0c0\" LEFTMARGIN=0 TOPMARGIN=0>\n<EMBED SRC=\"");
    page->write(videoText.substr(0, quote + 1));
    page->write(" WIDTH=640 HEIGHT=498 AUTOPLAY=TRUE SCALE=2>\n</BODY></HTML>\n");
}

void WriteEnlargedMoleculePage(const FileSystem& files, const std::string& enlargedPage,
                               const std::string& preparedPage) {
    std::optional<TextWriter> enlarged = TextWriter::open(files, enlargedPage);
    if (!enlarged) return;
    std::optional<TextReader> prepared = TextReader::open(files, preparedPage);
    if (!prepared) return;
    Lines page(std::move(*prepared));
    copyMoleculeBlock(page, *enlarged);
}

}  // namespace kalyxo
