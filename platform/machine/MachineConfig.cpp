#include "platform/machine/MachineConfig.h"

#include <algorithm>
#include <array>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

#include "platform/files/FileHandle.h"
#include "platform/files/ReplaceFile.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

// Ordered, so that a written file shows its fields in the order in which they are described.
using Json = nlohmann::ordered_json;

constexpr std::size_t maxFileSize = 1 << 20;
constexpr int maxExtent = 32767;
constexpr int maxPixelRatio = 4;

constexpr std::array<std::pair<std::string_view, DriveType>, 6> driveTypeNames = {{
    {"unknown", DriveType::unknown},
    {"removable", DriveType::removable},
    {"fixed", DriveType::fixed},
    {"remote", DriveType::remote},
    {"cdrom", DriveType::cdrom},
    {"ramdisk", DriveType::ramdisk},
}};

/// Reads fields of JSON objects and remembers the first thing that is wrong.
class FieldReader {
  public:
    bool failed() const { return !problem_.empty(); }
    const std::string& problem() const { return problem_; }
    void fail(std::string problem) {
        if (!failed()) problem_ = std::move(problem);
    }

    bool isObject(const Json& value, const std::string& name) {
        if (!value.is_object()) fail(name + " πρέπει να είναι αντικείμενο");
        return value.is_object();
    }

    /// The field of an object, or null when it is not there.
    static const Json* field(const Json& object, const char* key) {
        const auto found = object.find(key);
        return found == object.end() ? nullptr : &*found;
    }

    void readInteger(const Json& value, const std::string& name, int min, int max, int& target) {
        const bool fits = value.is_number_integer() && value >= min && value <= max;
        if (fits) {
            target = value.get<int>();
        } else {
            fail(name + " πρέπει να είναι ακέραιος από " + std::to_string(min) + " έως " +
                 std::to_string(max));
        }
    }

    void readInteger(const Json& object, const char* key, const std::string& parent, int min, int max,
                     int& target) {
        if (const Json* value = field(object, key)) {
            readInteger(*value, parent + "." + key, min, max, target);
        }
    }

    /// A text in code page 1253.
    void readText(const Json& object, const char* key, std::string& target) {
        const Json* value = field(object, key);
        if (!value) return;
        if (!value->is_string()) return fail(std::string(key) + " πρέπει να είναι κείμενο");
        auto text = fromUtf8Strict(value->get_ref<const std::string&>());
        if (!text) return fail(std::string(key) + " έχει χαρακτήρα εκτός της κωδικοσελίδας 1253");
        target = std::move(*text);
    }

    void readTruth(const Json& object, const char* key, bool& target) {
        const Json* value = field(object, key);
        if (!value) return;
        if (!value->is_boolean()) return fail(std::string(key) + " πρέπει να είναι true ή false");
        target = value->get<bool>();
    }

  private:
    std::string problem_;
};

void readScreen(FieldReader& reader, const Json& root, ScreenConfig& screen) {
    const Json* object = FieldReader::field(root, "screen");
    if (!object || !reader.isObject(*object, "screen")) return;
    reader.readInteger(*object, "width", "screen", 1, maxExtent, screen.width);
    reader.readInteger(*object, "height", "screen", 1, maxExtent, screen.height);
    reader.readInteger(*object, "bitsPerPixel", "screen", 1, 32, screen.bitsPerPixel);
    reader.readInteger(*object, "pixelRatio", "screen", 1, maxPixelRatio, screen.pixelRatio);
    reader.readInteger(*object, "left", "screen", -maxExtent, maxExtent, screen.left);
    reader.readInteger(*object, "top", "screen", -maxExtent, maxExtent, screen.top);
}

void readMetrics(FieldReader& reader, const Json& root, MachineConfig& config) {
    const Json* object = FieldReader::field(root, "metrics");
    if (!object || !reader.isObject(*object, "metrics")) return;
    for (const auto& [name, value] : object->items()) {
        reader.readInteger(value, "metrics." + name, 0, maxExtent, config.metrics[name]);
    }
}

std::optional<DriveType> driveTypeByName(std::string_view name) {
    const auto found =
        std::ranges::find_if(driveTypeNames, [name](const auto& row) { return row.first == name; });
    return found == driveTypeNames.end() ? std::nullopt : std::optional(found->second);
}

std::string_view driveTypeName(DriveType type) {
    const auto found =
        std::ranges::find_if(driveTypeNames, [type](const auto& row) { return row.second == type; });
    return found == driveTypeNames.end() ? "unknown" : found->first;
}

void readDrive(FieldReader& reader, const Json& object, const std::string& name, DriveConfig& drive) {
    if (!reader.isObject(object, name)) return;
    if (const Json* type = FieldReader::field(object, "type")) {
        const auto known =
            type->is_string() ? driveTypeByName(type->get_ref<const std::string&>()) : std::nullopt;
        if (!known)
            return reader.fail(
                name + ".type πρέπει να είναι ένα από τα removable, fixed, remote, cdrom, ramdisk, unknown");
        drive.type = *known;
    }
    if (const Json* folder = FieldReader::field(object, "folder")) {
        if (!folder->is_string()) return reader.fail(name + ".folder πρέπει να είναι κείμενο");
        drive.folder = folder->get_ref<const std::string&>();
    }
}

void readDrives(FieldReader& reader, const Json& root, MachineConfig& config) {
    const Json* object = FieldReader::field(root, "drives");
    if (!object || !reader.isObject(*object, "drives")) return;
    for (const auto& [name, value] : object->items()) {
        if (name.size() != 1 || name[0] < 'A' || name[0] > 'Z') {
            return reader.fail("drives: το \"" + name + "\" δεν είναι γράμμα μονάδας από A έως Z");
        }
        if (value.is_null()) {
            config.drives.erase(name[0]);
            continue;
        }
        const std::string usualFolder{lower(name[0])};
        DriveConfig& drive =
            config.drives.try_emplace(name[0], DriveConfig{DriveType::fixed, usualFolder}).first->second;
        readDrive(reader, value, "drives." + name, drive);
    }
}

void readPrinter(FieldReader& reader, const Json& root, MachineConfig& config) {
    const Json* object = FieldReader::field(root, "printer");
    if (!object || object->is_null() || !reader.isObject(*object, "printer")) return;
    constexpr int max = std::numeric_limits<int>::max();
    PrinterConfig& printer = config.printer.emplace();
    reader.readInteger(*object, "horzres", "printer", 1, max, printer.horzres);
    reader.readInteger(*object, "vertres", "printer", 1, max, printer.vertres);
    reader.readInteger(*object, "logpixelsy", "printer", 1, max, printer.logpixelsy);
}

void readHost(FieldReader& reader, const Json& sites, const char* name, std::string& host) {
    const Json* value = FieldReader::field(sites, name);
    if (!value) return;
    const std::string text = value->is_string() ? value->get<std::string>() : "?";
    const bool isName = std::ranges::all_of(text, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.';
    });
    if (!isName)
        return reader.fail("sites." + std::string(name) +
                           " πρέπει να είναι όνομα τοποθεσίας με πεζά γράμματα");
    host = text;
}

void readSites(FieldReader& reader, const Json& root, SitesConfig& sites) {
    const Json* object = FieldReader::field(root, "sites");
    if (!object || !reader.isObject(*object, "sites")) return;
    readHost(reader, *object, "product", sites.product);
    readHost(reader, *object, "maker", sites.maker);
}

MachineConfig readConfig(FieldReader& reader, const Json& root, const MachineConfig& defaults) {
    MachineConfig config = defaults;
    if (!reader.isObject(root, "το περιεχόμενο")) return config;
    readScreen(reader, root, config.screen);
    readMetrics(reader, root, config);
    readDrives(reader, root, config);
    reader.readText(root, "program", config.program);
    reader.readText(root, "temp", config.temp);
    reader.readText(root, "system", config.system);
    readPrinter(reader, root, config);
    readSites(reader, root, config.sites);
    reader.readTruth(root, "automation", config.automation);
    if (const Json* slow = FieldReader::field(root, "msPerStep")) {
        reader.readInteger(*slow, "msPerStep", 0, std::numeric_limits<int>::max(), config.msPerStep);
    }
    return config;
}

Json drivesToJson(const MachineConfig& config) {
    Json object = Json::object();
    // The reader adds a drive C: that is left out.
    if (!config.drives.contains('C')) object["C"] = nullptr;
    for (const auto& [letter, drive] : config.drives) {
        object[std::string{letter}] = {{"type", driveTypeName(drive.type)},
                                       {"folder", drive.folder.string()}};
    }
    return object;
}

Json toJson(const MachineConfig& config) {
    Json root;
    const ScreenConfig& screen = config.screen;
    root["screen"] = {
        {"width", screen.width}, {"height", screen.height}, {"bitsPerPixel", screen.bitsPerPixel}};
    if (screen.pixelRatio != 1) root["screen"]["pixelRatio"] = screen.pixelRatio;
    if (screen.left != 0) root["screen"]["left"] = screen.left;
    if (screen.top != 0) root["screen"]["top"] = screen.top;
    root["metrics"] = Json::object();
    for (const auto& [name, value] : config.metrics) root["metrics"][name] = value;
    root["drives"] = drivesToJson(config);
    root["program"] = toUtf8(config.program);
    root["temp"] = toUtf8(config.temp);
    root["system"] = toUtf8(config.system);
    root["sites"] = {{"product", config.sites.product}, {"maker", config.sites.maker}};
    if (!config.automation) root["automation"] = false;
    if (config.msPerStep != 0) root["msPerStep"] = config.msPerStep;
    root["printer"] = nullptr;
    if (const auto& printer = config.printer) {
        root["printer"] = {{"horzres", printer->horzres},
                           {"vertres", printer->vertres},
                           {"logpixelsy", printer->logpixelsy}};
    }
    return root;
}

}  // namespace

Result<MachineConfig> parseMachineConfig(std::string_view json, std::string_view name,
                                         const MachineConfig& defaults) {
    const std::string prefix = std::string(name) + ": ";
    Json root;
    try {
        root = Json::parse(json);
    } catch (const Json::parse_error& error) {
        return Failure{prefix + "δεν είναι JSON: " + error.what()};
    }
    FieldReader reader;
    MachineConfig config = readConfig(reader, root, defaults);
    if (reader.failed()) return Failure{prefix + reader.problem()};
    return config;
}

Result<MachineConfig> loadMachineConfig(const std::filesystem::path& path, const MachineConfig& defaults) {
    FileHandle file = FileHandle::openForReading(path);
    const auto text = file ? file.readAll(maxFileSize + 1) : std::nullopt;
    if (!text) return Failure{path.string() + ": δεν διαβάζεται"};
    if (text->size() > maxFileSize) return Failure{path.string() + ": είναι πολύ μεγάλο"};
    return parseMachineConfig(*text, path.string(), defaults);
}

bool saveMachineConfig(const MachineConfig& config, const std::filesystem::path& path) {
    try {
        return replaceFile(path, toJson(config).dump(2) + "\n");
    } catch (const Json::type_error&) {
        return false;  // a folder's name is not UTF-8, so JSON cannot hold it
    }
}

}  // namespace platform
