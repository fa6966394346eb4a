#include "tools/contentc/commands/Options.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/contentc/commands/CommandMessages.h"
#include "tools/contentc/render/MadeFiles.h"

namespace contentc {
namespace {

using Arguments = std::span<const char* const>;

constexpr std::pair<std::string_view, Command> commands[] = {
    {"new", Command::create},        {"check", Command::check}, {"counts", Command::counts},
    {"build", Command::build},       {"open", Command::open},   {"watch", Command::watch},
    {"--help", Command::help},       {"help", Command::help},   {"-h", Command::help},
    {"--version", Command::version},
};

class OptionReader {
  public:
    std::variant<Options, Phrase> read(Arguments arguments) {
        if (arguments.empty()) return Phrase{say::commandIsMissing, {}};
        if (auto fault = readCommand(arguments.front())) return *std::move(fault);
        for (rest_ = arguments.subspan(1); !rest_.empty();) {
            const std::string_view argument = rest_.front();
            rest_ = rest_.subspan(1);
            auto fault = argument.starts_with("--") ? readOption(argument) : readFolder(argument);
            if (fault) return *std::move(fault);
        }
        return complete();
    }

  private:
    std::optional<Phrase> readCommand(std::string_view name) {
        const auto* const found =
            std::ranges::find(commands, name, &std::pair<std::string_view, Command>::first);
        if (found == std::end(commands)) return Phrase{say::unknownCommand, {name}};
        options_.command = found->second;
        return std::nullopt;
    }

    std::optional<Phrase> readFolder(std::string_view folder) {
        if (hasFolder_) return Phrase{say::argumentTooMuch, {folder}};
        options_.sources.content = folder;
        hasFolder_ = true;
        return std::nullopt;
    }

    std::optional<Phrase> readOption(std::string_view name) {
        if (name == "--strict" || name == "--complete") {
            (name == "--strict" ? options_.strict : options_.complete) = true;
            return std::nullopt;
        }
        constexpr std::string_view withValue[] = {"--output", "--cache", "--images", "--media", "--base"};
        if (std::ranges::find(withValue, name) == std::end(withValue))
            return Phrase{say::unknownOption, {name}};
        if (rest_.empty()) return Phrase{say::optionNeedsValue, {name}};
        take(name, rest_.front());
        rest_ = rest_.subspan(1);
        return std::nullopt;
    }

    void take(std::string_view name, const char* value) {
        if (name == "--output") options_.output = value;
        if (name == "--cache") options_.cache = value;
        if (name == "--images") options_.sources.images.emplace_back(value);
        if (name == "--media") options_.sources.media.emplace_back(value);
        if (name == "--base") options_.base = value;
    }

    std::variant<Options, Phrase> complete() {
        if (options_.command == Command::create && !hasFolder_) return Phrase{say::newNeedsFolder, {}};
        if (!hasFolder_) options_.sources.content = ".";
        if (options_.output.empty()) options_.output = options_.sources.content / "data";
        if (options_.cache.empty()) options_.cache = userMadeFilesFolder();
        return std::move(options_);
    }

    Options options_;
    bool hasFolder_ = false;
    Arguments rest_;
};

}  // namespace

std::variant<Options, Phrase> parseOptions(Arguments arguments) { return OptionReader().read(arguments); }

}  // namespace contentc
