#include "platform/registry/RegFile.h"

#include <array>
#include <cstdio>
#include <optional>

#include "platform/files/BinaryFile.h"
#include "platform/files/ReplaceFile.h"
#include "platform/registry/RegFileReader.h"
#include "platform/text/Utf8.h"

namespace platform {

namespace {

constexpr std::uint64_t maxFileBytes = 64U << 20;

char16_t unitAt(std::string_view bytes, std::size_t index) {
    const auto low = static_cast<unsigned char>(bytes[2 * index]);
    const auto high = static_cast<unsigned char>(bytes[2 * index + 1]);
    return static_cast<char16_t>(low | (high << 8));
}

/// UTF-16LE as UTF-8. A half of a surrogate pair alone becomes a surrogate in UTF-8 form, which the reader
/// refuses.
std::string fromUtf16(std::string_view bytes) {
    std::string result;
    const std::size_t units = bytes.size() / 2;
    for (std::size_t i = 0; i < units; ++i) {
        char32_t value = unitAt(bytes, i);
        const char16_t next = i + 1 < units ? unitAt(bytes, i + 1) : u'\0';
        if (value >= 0xD800 && value <= 0xDBFF && next >= 0xDC00 && next <= 0xDFFF) {
            value = 0x10000 + ((value - 0xD800) << 10) + (next - 0xDC00U);
            ++i;
        }
        appendUtf8(result, value);
    }
    return result;
}

/// The text of a file in either encoding, as UTF-8 without a byte order mark.
std::string decoded(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) return fromUtf16(bytes.substr(2));
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    return std::string(bytes);
}

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        result += c;
    }
    return result + '"';
}

std::string formatData(const RegistryData& data) {
    if (const auto* text = std::get_if<std::string>(&data)) return inQuotes(*text);
    if (const auto* other = std::get_if<RegistryOther>(&data)) return other->text;
    std::array<char, 16> number{};
    std::snprintf(number.data(), number.size(), "dword:%08x", std::get<std::uint32_t>(data));
    return number.data();
}

void formatKey(std::string& target, const RegistryNode& key, const std::string& path) {
    target += "\r\n[" + path + "]\r\n";
    for (const auto& [lookupName, value] : key.values) {
        target += (value.name.empty() ? "@" : inQuotes(value.name)) + "=" + formatData(value.data) + "\r\n";
    }
    for (const auto& [lookupName, child] : key.keys) formatKey(target, *child, path + "\\" + child->name);
}

std::optional<std::string> readBytes(const std::filesystem::path& path) {
    auto file = BinaryFile::open(path);
    if (!file || file->size() > maxFileBytes) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file->size()), '\0');
    const bool whole = file->read(std::as_writable_bytes(std::span(bytes))) == bytes.size();
    return whole ? std::optional(std::move(bytes)) : std::nullopt;
}

}  // namespace

Result<Registry> parseRegText(std::string_view bytes, std::string_view name) {
    const std::string text = decoded(bytes);
    auto tree = RegFileReader(text).read();
    if (!tree) return Failure{std::string(name) + ", " + tree.failure().message};
    return Registry(*std::move(tree));
}

Result<Registry> loadRegFile(const std::filesystem::path& path) {
    const auto bytes = readBytes(path);
    if (!bytes) return Failure{path.string() + ": δεν διαβάζεται"};
    return parseRegText(*bytes, path.string());
}

std::string formatRegText(const Registry& registry) {
    std::string text = std::string(regFileHeader) + "\r\n";
    for (const auto& [lookupName, root] : registry.tree().keys) formatKey(text, *root, root->name);
    return text;
}

bool saveRegFile(const Registry& registry, const std::filesystem::path& path) {
    return replaceFile(path, formatRegText(registry));
}

}  // namespace platform
