#include "src/host/CommandLine.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "src/host/SharedContent.h"

namespace kalyxo {

namespace fs = std::filesystem;

using platform::Failure;
using platform::Result;

namespace {

constexpr std::string_view kHelp =
    "Χρήση: kalyxo [--data ΦΑΚΕΛΟΣ [--follow]]\n"
    "\n"
    "  --data ΦΑΚΕΛΟΣ  δείχνει το περιεχόμενο του φακέλου, μόνο αυτή τη φορά\n"
    "  --follow        δείχνει ξανά τη σελίδα όταν ο φάκελος αλλάζει\n"
    "  --help          δείχνει αυτό το κείμενο\n"
    "  --version       δείχνει την έκδοση του προγράμματος\n";
constexpr std::string_view kFollow = "--follow";
constexpr std::string_view kVersion = "Kalyxo " KALYXO_VERSION "\n";

bool areAmong(Arguments arguments, std::string_view option) {
    return std::ranges::any_of(arguments, [option](std::string_view given) { return given == option; });
}

Result<fs::path> contentFolder(std::string_view path) {
    std::error_code error;
    fs::path folder = fs::canonical(path, error);
    if (!error && HoldsContent(folder)) return folder;
    return Failure{std::string(path) + ": ο φάκελος δεν υπάρχει ή δεν έχει αρχική σελίδα (a.htm)"};
}

}  // namespace

std::optional<std::string_view> AnswerTo(Arguments arguments) {
    if (areAmong(arguments, "--help")) return kHelp;
    if (areAmong(arguments, "--version")) return kVersion;
    return std::nullopt;
}

bool FollowsContent(Arguments arguments) { return arguments.size() == 3 && arguments[2] == kFollow; }

Result<fs::path> GivenDataFolder(Arguments arguments) {
    if (arguments.empty()) return fs::path();
    const std::string_view option = arguments.front();
    if (option != "--data") return Failure{std::string(option) + ": άγνωστη παράμετρος"};
    if (arguments.size() == 1) return Failure{"--data: λείπει ο φάκελος"};
    if (arguments.size() == 3 && FollowsContent(arguments)) return contentFolder(arguments[1]);
    if (arguments.size() > 2) return Failure{std::string(arguments[2]) + ": περισσεύει"};
    return contentFolder(arguments[1]);
}

}  // namespace kalyxo
