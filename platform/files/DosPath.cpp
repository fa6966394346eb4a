#include "platform/files/DosPath.h"

#include <sys/stat.h>

#include <algorithm>

#include "platform/files/FolderNames.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

bool isSlash(char c) { return c == '\\' || c == '/'; }

void addName(std::vector<std::string>& names, std::string_view name) {
    if (name.empty() || name == ".") return;
    if (name != "..") {
        names.push_back(toUtf8(name));
    } else if (!names.empty()) {
        names.pop_back();
    }
}

std::string withSlash(std::string_view path) {
    return std::string(path) + (path.ends_with('\\') ? "" : "\\");
}

bool exists(const std::string& path) {
    struct stat status{};
    return ::stat(path.c_str(), &status) == 0;
}

bool isFolder(const std::string& path) {
    struct stat status{};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Goes one name down; an existing name or one that differs in case only.
bool descend(std::string& path, const std::string& name) {
    std::string exact = joinName(path, name);
    if (exists(exact)) {
        path = std::move(exact);
        return true;
    }
    const auto found = findName(path, name);
    if (found) path = joinName(path, *found);
    return found.has_value();
}

}  // namespace

std::string joinName(std::string folder, std::string_view name) {
    if (!folder.ends_with('/')) folder += '/';
    return folder.append(name);
}

std::optional<DosPath> parseDosPath(std::string_view text) {
    if (text.size() < 2 || text[1] != ':' || text.find('\0') != text.npos) return std::nullopt;
    const char letter = lower(text[0]);
    if (letter < 'a' || letter > 'z') return std::nullopt;
    if (text.size() > 2 && !isSlash(text[2])) return std::nullopt;

    DosPath path{static_cast<char>(letter - 'a' + 'A'), {}};
    std::string_view rest = text.substr(2);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of("\\/"), rest.size());
        addName(path.names, rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return path;
}

std::optional<std::string> canonicalDosPath(std::string_view text) {
    const auto path = parseDosPath(text);
    if (!path) return std::nullopt;
    std::string result{path->letter, ':'};
    for (const auto& name : path->names) result += '\\' + fromUtf8(name);
    return path->names.empty() ? result + '\\' : result;
}

bool liesBelow(std::string_view canonicalPath, std::string_view folder) {
    const auto above = canonicalDosPath(folder);
    return above && toLower(withSlash(canonicalPath)).starts_with(toLower(withSlash(*above)));
}

std::string joinNames(const std::string& folder, const std::vector<std::string>& names) {
    std::string path = folder;
    for (const auto& name : names) path = joinName(std::move(path), name);
    return path;
}

std::optional<std::string> findFolder(const std::string& folder, const std::vector<std::string>& names) {
    std::string path = joinNames(folder, names);
    if (isFolder(path)) return path;
    path = folder;
    for (const auto& name : names) {
        if (!descend(path, name)) return std::nullopt;
    }
    if (!isFolder(path)) return std::nullopt;
    return path;
}

std::optional<std::string> findNames(const std::string& folder, const std::vector<std::string>& names) {
    std::string exact = joinNames(folder, names);
    return exists(exact) ? std::move(exact) : findNamesInAnyCase(folder, names);
}

std::optional<std::string> findNamesInAnyCase(const std::string& folder,
                                              const std::vector<std::string>& names) {
    if (names.empty()) return folder;
    auto path = findFolder(folder, {names.begin(), names.end() - 1});
    if (!path) return std::nullopt;
    return joinName(*path, findName(*path, names.back()).value_or(names.back()));
}

}  // namespace platform
