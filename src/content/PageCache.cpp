#include "src/content/PageCache.h"

#include <utility>

#include "platform/files/FileSystem.h"
#include "platform/files/TextWriter.h"

namespace kalyxo {

namespace {

constexpr int kPagesKept = 20;

}  // namespace

CacheLocation LocateCache(std::string_view programFolder, std::string_view tempFolder,
                          bool outsideInstallFolder) {
    const std::string folder =
        outsideInstallFolder ? std::string(tempFolder) + "klyx" : std::string(programFolder) + "\\cache";
    return {folder + '\\', outsideInstallFolder};
}

void PageCache::Open(CacheLocation location) {
    m_location = std::move(location);
    m_files.createFolder(m_location.folder.substr(0, m_location.folder.size() - 1));
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
    m_files.deleteFile(m_location.folder + "bigvid.htm");
    m_files.deleteFile(m_location.folder + "chime.mol");
    if (m_location.removeAtEnd) {
        m_files.removeFolder(m_location.folder.substr(0, m_location.folder.size() - 1));
    }
}

std::string PageCache::numbered(int number) const {
    return m_location.folder + std::to_string(number) + ".htm";
}

std::string PageCache::redirectPath() const { return m_location.folder + "redirect.htm"; }

void PageCache::deletePagesBelow(int limit) {
    for (; m_nOldest < limit; ++m_nOldest) m_files.deleteFile(numbered(m_nOldest));
}

}  // namespace kalyxo
