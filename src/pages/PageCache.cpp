#include "src/pages/PageCache.h"
#include "src/pages/EnlargedPages.h"
#include "src/pages/MoleculeCopy.h"

#include <utility>

#include "platform/files/FileSystem.h"
#include "platform/files/ReplaceFile.h"
#include "platform/files/TextWriter.h"

namespace kalyxo {

namespace {

constexpr int kPagesKept = 20;
/// How many programs on one machine get a cache folder of their own.
constexpr int kMaxPrograms = 99;

std::string withoutLastBackslash(const std::string& folder) { return folder.substr(0, folder.size() - 1); }

}  // namespace

CacheLocation LocateCache(std::string_view programFolder, std::string_view tempFolder,
                          bool outsideInstallFolder) {
    const std::string folder =
        outsideInstallFolder ? std::string(tempFolder) + "klyx" : std::string(programFolder) + "\\cache";
    return {folder + '\\', outsideInstallFolder};
}

void PageCache::Open(CacheLocation location) {
    if (take(location)) return;
    const std::string base = withoutLastBackslash(location.folder);
    for (int program = 2; program <= kMaxPrograms; ++program) {
        if (take({base + std::to_string(program) + '\\', true})) return;
    }
    // Every folder is in use, or none can be created, which is more likely.
    m_location = std::move(location);
}

bool PageCache::take(const CacheLocation& location) {
    const std::string folder = withoutLastBackslash(location.folder);
    m_files.createFolder(folder);
    const auto native = m_files.nativePath(folder);
    if (!native) return false;
    m_lock = platform::FolderLock::tryNow(*native);
    if (!m_lock) return false;
    m_location = location;
    platform::deleteHalves(*native);
    return true;
}

std::string PageCache::NextTarget() { return numbered(m_nNext++); }

std::string PageCache::WriteRedirect(std::string_view target) const {
    std::optional<platform::TextWriter> page = platform::TextWriter::open(m_files, redirectPath());
    if (!page) return {};
    page->write(R"(<HTML><HEAD><META HTTP-EQUIV="Refresh" Content="0; URL=)");
    page->write(target);
    page->write(R"("></HEAD><BODY BGCOLOR="#949494"></BODY></HTML>)");
    return redirectPath();
}

void PageCache::CleanCache(bool final) {
    deletePagesBelow(final ? m_nNext : m_nNext - kPagesKept);
    if (!final) return;
    m_files.deleteFile(redirectPath());
    m_files.deleteFile(m_location.folder + std::string(kEnlargedPage));
    m_files.deleteFile(m_location.folder + std::string(kMoleculeCopy));
    if (m_location.removeAtEnd) {
        m_files.removeFolder(withoutLastBackslash(m_location.folder));
    }
    m_lock.reset();
}

std::string PageCache::numbered(int number) const {
    return m_location.folder + std::to_string(number) + ".htm";
}

std::string PageCache::redirectPath() const { return m_location.folder + "redirect.htm"; }

void PageCache::deletePagesBelow(int limit) {
    for (; m_nOldest < limit; ++m_nOldest) m_files.deleteFile(numbered(m_nOldest));
}

}  // namespace kalyxo
