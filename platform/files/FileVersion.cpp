#include "platform/files/FileVersion.h"

#include <elf.h>

#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "platform/files/BinaryFile.h"

namespace platform {

namespace {

constexpr std::string_view versionSection = ".component.version";
constexpr std::size_t longestVersion = 255;
constexpr std::uint64_t maxNameTableBytes = 1 << 20;

template <typename T>
std::optional<T> readRecord(const BinaryFile& file, std::uint64_t offset) {
    T record;
    const auto bytes = std::as_writable_bytes(std::span(&record, 1));
    if (file.readAt(offset, bytes) != bytes.size()) return std::nullopt;
    return record;
}

bool isElf64(const Elf64_Ehdr& header) {
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == ELFCLASS64 &&
           header.e_ident[EI_DATA] == ELFDATA2LSB && header.e_shentsize == sizeof(Elf64_Shdr);
}

bool liesWithin(const Elf64_Shdr& section, std::uint64_t fileSize) {
    return section.sh_type != SHT_NOBITS && section.sh_offset <= fileSize &&
           section.sh_size <= fileSize - section.sh_offset;
}

std::optional<std::vector<Elf64_Shdr>> readSections(const BinaryFile& file, const Elf64_Ehdr& header) {
    std::vector<Elf64_Shdr> sections(header.e_shnum);
    const auto bytes = std::as_writable_bytes(std::span(sections));
    if (header.e_shoff > file.size() || bytes.size() > file.size() - header.e_shoff) return std::nullopt;
    if (file.readAt(header.e_shoff, bytes) != bytes.size()) return std::nullopt;
    return sections;
}

std::optional<std::string> readSection(const BinaryFile& file, const Elf64_Shdr& section,
                                       std::uint64_t limit) {
    if (!liesWithin(section, file.size()) || section.sh_size > limit) return std::nullopt;
    std::string content(static_cast<std::size_t>(section.sh_size), '\0');
    const auto bytes = std::as_writable_bytes(std::span(content));
    if (file.readAt(section.sh_offset, bytes) != bytes.size()) return std::nullopt;
    return content;
}

/// The NUL-ended text at an offset; empty when that lies outside or no NUL follows.
std::string_view textAt(std::string_view table, std::size_t offset) {
    if (offset >= table.size()) return {};
    const std::size_t end = table.find('\0', offset);
    return end == table.npos ? std::string_view{} : table.substr(offset, end - offset);
}

}  // namespace

std::optional<std::string> fileVersionText(const std::filesystem::path& path) {
    const auto file = BinaryFile::open(path);
    if (!file) return std::nullopt;
    const auto header = readRecord<Elf64_Ehdr>(*file, 0);
    if (!header || !isElf64(*header)) return std::nullopt;
    const auto sections = readSections(*file, *header);
    if (!sections || header->e_shstrndx >= sections->size()) return std::nullopt;
    const auto names = readSection(*file, (*sections)[header->e_shstrndx], maxNameTableBytes);
    if (!names) return std::nullopt;
    for (const auto& section : *sections) {
        if (textAt(*names, section.sh_name) != versionSection) continue;
        const auto content = readSection(*file, section, longestVersion + 1);
        const std::string_view version = content ? textAt(*content, 0) : std::string_view{};
        if (version.empty()) return std::nullopt;
        return std::string(version);
    }
    return std::nullopt;
}

}  // namespace platform
