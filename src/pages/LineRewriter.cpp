#include "src/pages/LineRewriter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "controls/contract/ClassIds.h"
#include "src/components/ClassIds.h"
#include "src/pages/GlossaryMarkup.h"

namespace kalyxo {

namespace {

constexpr char kMoleculeMarker = '\x03';
constexpr char kVideoMarker = '\x04';
constexpr char kDataFolderMarker = '\x05';
constexpr char kCapitalAlphaTonos = '\xA2';
/// A marker is followed by two bytes that go with it.
constexpr std::size_t kMarkerLength = 3;

constexpr std::string_view kBody = "<BODY ";
constexpr std::string_view kCredit = "2001 Orvane Press";

/// As many bytes as today's processors look at in one step.
using Bytes = std::array<std::uint8_t, 16>;

/// Each text that is looked for in a line has a byte that is rare in pages; a line without any of these
/// bytes needs no closer look. A hyphen or a "P" alone is common enough to be asked for together with
/// another. There are no branches, so that the compiler looks at all bytes of a block at once, which takes a
/// quarter of the time.
class RareBytes {
  public:
    void look(const Bytes& block) {
        constexpr std::uint8_t kLastMarker = kDataFolderMarker;
        static_assert(kMoleculeMarker <= kLastMarker && kVideoMarker <= kLastMarker);
        for (std::size_t i = 0; i < block.size(); ++i) {
            const auto c = static_cast<char>(block[i]);
            // NUL and the markers, and no other byte of a page. The "Y" is that of "<BODY ".
            const bool isAlone =
                (block[i] <= kLastMarker) | (c == '~') | (c == 'Y') | (c == kCapitalAlphaTonos);
            m_alone[i] |= static_cast<std::uint8_t>(isAlone);
            m_paired[i] |= static_cast<std::uint8_t>((c == '-' ? kHyphen : 0) | (c == '5' ? kFive : 0) |
                                                     (c == 'P' ? kLetterP : 0) | (c == 'O' ? kLetterO : 0));
        }
    }

    bool found() const {
        constexpr unsigned kClassIdBytes = kHyphen | kFive;
        constexpr unsigned kCreditBytes = kLetterP | kLetterO;
        const unsigned paired = any(m_paired);
        return any(m_alone) != 0 || (paired & kClassIdBytes) == kClassIdBytes ||
               (paired & kCreditBytes) == kCreditBytes;
    }

  private:
    enum Paired : std::uint8_t { kHyphen = 1, kFive = 2, kLetterP = 4, kLetterO = 8 };

    /// The bits of all bytes together.
    static unsigned any(const Bytes& bytes) {
        const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(bytes);
        std::uint64_t bits = halves[0] | halves[1];
        for (const int width : {32, 16, 8}) bits |= bits >> width;
        return static_cast<unsigned>(bits & 0xFF);
    }

    Bytes m_alone{};
    Bytes m_paired{};
};

void replaceAll(std::string& line, std::string_view what, std::string_view with) {
    for (std::size_t at = line.find(what); at != std::string::npos; at = line.find(what, at + with.size())) {
        line.replace(at, what.size(), with);
    }
}

void overwriteFirst(std::string& line, std::string_view what, std::string_view with) {
    const std::size_t at = line.find(what);
    if (at != std::string::npos) line.replace(at, what.size(), with);
}

void insertGlossaryLinks(std::string& line) {
    for (std::size_t at = line.find('~'); at != std::string::npos; at = line.find('~')) {
        const bool isTerm = at + 1 < line.size() && line[at + 1] == 'G';
        if (!isTerm || !InsertGlossaryLink(line, at)) return;
    }
}

void setLinkColours(std::string& line) {
    if (line.find(kBody) == std::string::npos) return;
    replaceAll(line, R"(ALINK="#FFFFFF")", R"(ALINK="#0059CA")");
    if (line.find("VLINK") == std::string::npos) replaceAll(line, kBody, R"(<BODY VLINK="#0059CA" )");
}

void unwrapCredit(std::string& line) {
    if (line.find(kCredit) == std::string::npos) return;
    replaceAll(line, "<DIV ALIGN=right>", "");
    replaceAll(line, "</DIV>", "");
}

}  // namespace

bool LineRewriter::Concerns(std::string_view line) {
    RareBytes rare;
    Bytes block;
    const auto lookAt = [&](std::string_view bytes) {
        std::memcpy(block.data(), bytes.data(), block.size());
        rare.look(block);
    };
    if (line.size() < block.size()) {
        block.fill(' ');
        std::ranges::copy(line, block.begin());
        rare.look(block);
        return rare.found();
    }
    // The last block may hold bytes of the one before.
    const std::string_view last = line.substr(line.size() - block.size());
    for (; line.size() >= block.size(); line.remove_prefix(block.size())) lookAt(line);
    lookAt(last);
    return rare.found();
}

void LineRewriter::Rewrite(std::string& line, PageNotes& notes) const {
    insertGlossaryLinks(line);
    insertVideo(line, notes);
    insertMolecule(line, notes);
    for (std::size_t at = line.find(kDataFolderMarker); at != std::string::npos;
         at = line.find(kDataFolderMarker, at + m_dataFolder.size())) {
        insertDataFolder(line, at);
    }
    setLinkColours(line);
    replaceAll(line, std::string_view(&kCapitalAlphaTonos, 1), "&#x0386;");
    unwrapCredit(line);
    overwriteFirst(line, kPageMolCtrlClass, controls::moleculeControllerClass);
    overwriteFirst(line, kPageKzZoomClass, controls::moleculeZoomClass);
}

void LineRewriter::insertDataFolder(std::string& line, std::size_t marker) const {
    line.replace(marker, std::min(kMarkerLength, line.size() - marker), m_dataFolder);
}

void LineRewriter::insertVideo(std::string& line, PageNotes& notes) const {
    const std::size_t marker = line.find(kVideoMarker);
    if (marker == std::string::npos) return;
    insertDataFolder(line, marker);
    notes.video = true;
    notes.videoText = line.substr(marker);
}

void LineRewriter::insertMolecule(std::string& line, PageNotes& notes) const {
    const std::size_t marker = line.find(kMoleculeMarker);
    if (marker == std::string::npos) return;
    insertDataFolder(line, marker);
    notes.molecule = true;
    const std::size_t open = line.find('"');
    const std::size_t close = open == std::string::npos ? open : line.find('"', open + 1);
    if (close == std::string::npos) return;
    const std::string file = line.substr(open + 1, close - open - 1);
    const std::string_view copy = m_copyMolecule(file);
    if (!copy.empty()) replaceAll(line, file, copy);
}

}  // namespace kalyxo
