#include "src/pages/LineRewriter.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

/// Each text that is looked for in a line has a byte that is rare in pages; a line without any of these
/// bytes needs no closer look. A hyphen or a "P" alone is common enough to be asked for together with
/// another.
enum ByteTrait : std::uint8_t { kNone = 0, kAlways = 1, kHyphen = 2, kFive = 4, kLetterP = 8, kLetterO = 16 };

constexpr std::array<std::uint8_t, 256> kTraits = [] {
    std::array<std::uint8_t, 256> traits{};
    const auto set = [&](char c, ByteTrait trait) { traits[static_cast<unsigned char>(c)] = trait; };
    set('~', kAlways);
    set(kMoleculeMarker, kAlways);
    set(kVideoMarker, kAlways);
    set(kDataFolderMarker, kAlways);
    set(kCapitalAlphaTonos, kAlways);
    set('Y', kAlways);  // "<BODY "
    set('-', kHyphen);
    set('5', kFive);
    set('P', kLetterP);
    set('O', kLetterO);
    return traits;
}();

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
    unsigned traits = 0;
    for (const char c : line) traits |= kTraits[static_cast<unsigned char>(c)];
    constexpr unsigned kClassIdTraits = kHyphen | kFive;
    constexpr unsigned kCreditTraits = kLetterP | kLetterO;
    return (traits & kAlways) != 0 || (traits & kClassIdTraits) == kClassIdTraits ||
           (traits & kCreditTraits) == kCreditTraits;
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
