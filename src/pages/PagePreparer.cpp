#include "src/pages/PagePreparer.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "platform/files/FileSystem.h"
#include "platform/files/TextReader.h"
#include "platform/files/TextWriter.h"
#include "src/pages/EnlargedPages.h"
#include "src/pages/LineRewriter.h"
#include "src/pages/MoleculeCopy.h"

namespace kalyxo {

using platform::TextReader;
using platform::TextWriter;

namespace {

/// Longer lines are rewritten in pieces of this many bytes, a terminating zero included.
constexpr std::size_t kLineLimit = 26000;
/// Room for what a line grows by.
constexpr std::size_t kWorkingSize = 30000;
/// Lines between two looks at the clock.
constexpr std::uint64_t kLinesPerStep = 256;
/// No real page comes near: the largest have some hundred kilobytes.
constexpr std::uint64_t kMaxPageBytes = std::uint64_t{64} << 20;

/// Molecules are copied one over the other; pages show one.
constexpr int kMaxCopies = 16;

/// False when the page gets too large.
bool rewriteLines(TextReader& source, TextWriter& target, const LineRewriter& rewriter, PageNotes& notes,
                  const platform::ProgressStep& step) {
    const auto buffer = std::make_unique_for_overwrite<char[]>(kLineLimit);
    std::string working;
    working.reserve(kWorkingSize);
    std::uint64_t lines = 0;
    std::uint64_t passed = 0;
    while (const std::size_t length = source.readLine(buffer.get(), kLineLimit)) {
        ++lines;
        if (lines % kLinesPerStep == 0 && !platform::GoesOn(step, lines, 0)) break;
        const std::string_view line(buffer.get(), length);
        const bool isRewritten = LineRewriter::Concerns(line);
        if (isRewritten) {
            // A NUL ends its line: what follows is dropped, with the line end.
            working = line.substr(0, line.find('\0'));
            rewriter.Rewrite(working, notes);
        }
        const std::string_view rewritten = isRewritten ? working : line;
        passed += std::max(rewritten.size(), length);
        if (passed > kMaxPageBytes) return false;
        target.writeLine(rewritten);
    }
    return true;
}

}  // namespace

PagePreparer::PagePreparer(const platform::FileSystem& files, std::string dataFolder, std::string cacheFolder)
    : m_files(files), m_strDataFolder(std::move(dataFolder)), m_strCacheFolder(std::move(cacheFolder)) {}

PrepareResult PagePreparer::PreparePage(const std::string& source, const std::string& target,
                                        PageContents& contents, const platform::ProgressStep& step) const {
    std::optional<TextReader> reader = TextReader::open(m_files, source);
    if (!reader) return PrepareResult::noSource;
    std::optional<TextWriter> writer = TextWriter::open(m_files, target);
    if (!writer) return PrepareResult::noTarget;
    PageNotes notes;
    int copies = 0;
    const LineRewriter rewriter(m_strDataFolder, [&](const std::string& molecule) {
        const bool isCopied =
            ++copies <= kMaxCopies && CopyMolecule(m_files, m_strDataFolder, molecule, target);
        return isCopied ? kMoleculeCopy : std::string_view();
    });
    const bool isWhole = rewriteLines(*reader, *writer, rewriter, notes, step);
    writer->close();
    if (!isWhole) {
        m_files.deleteFile(target);
        return PrepareResult::noTarget;
    }
    contents = {notes.video, notes.molecule};
    const std::string enlarged = m_strCacheFolder + std::string(kEnlargedPage);
    if (notes.video) WriteEnlargedVideoPage(m_files, enlarged, notes.videoText);
    if (notes.molecule) WriteEnlargedMoleculePage(m_files, enlarged, target);
    return PrepareResult::prepared;
}

}  // namespace kalyxo
