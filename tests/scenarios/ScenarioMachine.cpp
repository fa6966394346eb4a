#include "tests/scenarios/ScenarioMachine.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/files/FileVersion.h"
#include "platform/registry/RegFile.h"
#include "platform/text/CodePage1253.h"
#include "tests/HexBytes.h"
#include "tests/scenarios/DriverProcess.h"
#include "tests/scenarios/PrintedPages.h"

namespace scenario {

namespace fs = std::filesystem;

using Problem = std::optional<std::string>;

namespace {

constexpr const char* kSettingsKey = R"(Software\Orvane\Kalyxo Greek\Library Edition)";

fs::path newFolder() {
    std::string name = (fs::temp_directory_path() / "kalyxo-scenario-XXXXXX").string();
    return ::mkdtemp(name.data()) == nullptr ? fs::path() : fs::path(name);
}

/// The folder again, its files as links: a scenario pays nothing for the content that it leaves as it is.
void linkFolder(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::create_directories(to, error);
    for (fs::directory_iterator at(from, error), end; !error && at != end; at.increment(error)) {
        const fs::path copy = to / at->path().filename();
        if (at->is_directory()) {
            linkFolder(at->path(), copy);
        } else {
            fs::create_symlink(at->path(), copy, error);
        }
    }
}

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Writes a new file in place of what stood there, so that a link is replaced and not followed.
Problem replaceWith(const fs::path& file, std::string_view bytes) {
    std::error_code error;
    fs::remove(file, error);
    fs::create_directories(file.parent_path(), error);
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    return out.flush() ? std::nullopt : Problem(file.string() + " cannot be written");
}

Problem setSetting(const fs::path& file, const std::string& name, const Json& value) {
    auto registry = platform::loadRegFile(file);
    if (!registry) return registry.error;
    auto key = registry.value->createKey(platform::HKEY_LOCAL_MACHINE, kSettingsKey);
    if (value.is_string()) {
        key->setString(name, platform::fromUtf8(value.get_ref<const std::string&>()));
    } else if (value.is_number_integer()) {
        key->setDword(name, static_cast<std::uint32_t>(value.get<std::int64_t>()));
    } else {
        return "a setting is a number or a text";
    }
    return platform::saveRegFile(*registry.value, file) ? std::nullopt : Problem("registry not saved");
}

Problem mergeIntoJson(const fs::path& file, const Json& change) {
    Json config = Json::parse(bytesOf(file), nullptr, false);
    if (config.is_discarded()) return file.string() + " is not JSON";
    config.merge_patch(change);
    return replaceWith(file, config.dump(2));
}

Problem copyOf(const fs::path& from, const fs::path& to) { return replaceWith(to, bytesOf(from)); }

Problem replaceText(const fs::path& file, const std::string& former, const std::string& later) {
    std::string bytes = bytesOf(file);
    std::size_t at = bytes.find(former);
    if (former.empty() || at == std::string::npos) return file.string() + " does not hold " + former;
    for (; at != std::string::npos; at = bytes.find(former, at + later.size())) {
        bytes.replace(at, former.size(), later);
    }
    return replaceWith(file, bytes);
}

/// The text stands in the file with its NUL, and keeps its length.
Problem setVersion(const fs::path& file, std::string version) {
    const auto former = platform::fileVersionText(file);
    if (!former || version.size() > former->size()) return file.string() + " carries no longer version";
    version.resize(former->size() + 1);
    return replaceText(file, *former + '\0', version);
}

Problem checkContent(const fs::path& file, const FileCheck& check) {
    if (!check.value.is_string()) return "a text is needed to look for";
    const std::string wanted = check.value.get<std::string>();
    const std::string bytes = bytesOf(file);
    const bool there = bytes.find(wanted) != std::string::npos ||
                       bytes.find(platform::fromUtf8(wanted)) != std::string::npos;
    if (there == (check.what == "contains")) return std::nullopt;
    return check.file + (there ? " holds " : " does not hold ") + check.value.dump();
}

Problem checkBytes(const fs::path& file, const FileCheck& check) {
    const bool equal = check.value.is_string() && bytesOf(file) == hexBytes(check.value.get<std::string>());
    return equal ? std::nullopt : Problem(check.file + " has other bytes");
}

Problem checkCount(const fs::path& folder, const FileCheck& check) {
    std::error_code error;
    const fs::directory_iterator files(folder, error);
    const auto count = error ? -1 : std::distance(fs::begin(files), fs::end(files));
    if (check.value == count) return std::nullopt;
    return check.file + " has " + std::to_string(count) + " entries, not " + check.value.dump();
}

}  // namespace

ScenarioMachine::ScenarioMachine(fs::path driver, const fs::path& content)
    : m_driver(std::move(driver)),
      m_root(newFolder()),
      m_machine(m_root / "machine"),
      m_data(m_root / "data") {
    linkFolder(fs::absolute(content), m_data);
}

ScenarioMachine::~ScenarioMachine() {
    std::error_code ignored;
    if (!m_root.empty()) fs::remove_all(m_root, ignored);
}

Problem ScenarioMachine::Make() {
    if (m_made) return std::nullopt;
    m_made = true;
    std::vector<std::string> command = {m_driver, "--new-machine", m_machine, "--data", m_data};
    command.insert(command.end(), m_options.begin(), m_options.end());
    DriverProcess maker(command, m_root);
    const int status = maker.Finish();
    return status == 0 ? std::nullopt : Problem("making the machine ended with " + std::to_string(status));
}

Problem ScenarioMachine::Change(const MachineChange& change) {
    if (change.what == "options") {
        if (m_made) return "options come before all else";
        for (const Json& option : change.value) m_options.push_back(option.get<std::string>());
        return std::nullopt;
    }
    if (Problem problem = Make()) return problem;
    if (change.what == "machine") return mergeIntoJson(m_machine / "machine.json", change.value);
    if (change.what == "setting")
        return setSetting(m_machine / "registry.reg", change.words[0], change.value);
    return changeFile(change);
}

Problem ScenarioMachine::changeFile(const MachineChange& change) {
    const fs::path file = hostPath(change.words[0]);
    if (change.what == "write") return replaceWith(file, platform::fromUtf8(change.value.get<std::string>()));
    if (change.what == "bytes") return replaceWith(file, hexBytes(change.value.get<std::string>()));
    if (!fs::exists(file)) return change.words[0] + " does not exist";
    if (change.what == "copy") return copyOf(file, hostPath(change.words[1]));
    if (change.what == "version") return setVersion(file, change.value.get<std::string>());
    if (change.what == "replace") {
        return replaceText(file, platform::fromUtf8(change.value.at(0).get<std::string>()),
                           platform::fromUtf8(change.value.at(1).get<std::string>()));
    }
    if (change.what == "cut")
        return replaceWith(file, bytesOf(file).substr(0, change.value.get<std::size_t>()));
    std::error_code error;
    fs::remove_all(file, error);
    return error ? Problem(change.words[0] + " cannot be deleted") : std::nullopt;
}

Problem ScenarioMachine::Check(const FileCheck& check) const {
    const fs::path file = hostPath(check.file);
    if (check.what == "count") return checkCount(file, check);
    if (check.what == "no-file") return fs::exists(file) ? Problem(check.file + " exists") : std::nullopt;
    if (!fs::exists(file)) return check.file + " does not exist";
    if (check.what == "bytes") return checkBytes(file, check);
    if (check.what == "printed") return difference(printedPages(file), check.value);
    return check.what == "file" ? std::nullopt : checkContent(file, check);
}

fs::path ScenarioMachine::hostPath(const std::string& name) const {
    return name.starts_with("d/") ? m_data / name.substr(2) : m_machine / name;
}

}  // namespace scenario
