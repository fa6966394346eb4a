#include "tools/drive/script/CommandLine.h"

#include <string>
#include <utility>
#include <vector>

namespace drive {

using platform::Failure;
using platform::Result;

namespace {

/// The arguments as given; a text without a value was not given.
struct Given {
    std::optional<std::string> machine;
    std::optional<std::string> newMachine;
    std::optional<std::string> data;
    bool outside = false;
    bool bare = false;
    bool follow = false;
    std::vector<std::string> rest;
};

std::optional<std::string>* valueOf(Given& given, std::string_view option) {
    if (option == "--machine") return &given.machine;
    if (option == "--new-machine") return &given.newMachine;
    if (option == "--data") return &given.data;
    return nullptr;
}

bool* flagOf(Given& given, std::string_view option) {
    if (option == "--outside") return &given.outside;
    if (option == "--bare") return &given.bare;
    if (option == "--follow") return &given.follow;
    return nullptr;
}

/// Sorts the arguments into `given`; fails for one that has no place.
Result<void> sortOut(std::span<const char* const> arguments, Given& given) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = arguments[i];
        if (auto* value = valueOf(given, argument)) {
            if (++i == arguments.size()) return Failure{argument + " needs a value"};
            *value = arguments[i];
        } else if (bool* flag = flagOf(given, argument)) {
            *flag = true;
        } else if (argument.starts_with("--")) {
            return Failure{argument + ": unknown option"};
        } else {
            given.rest.push_back(argument);
        }
    }
    return {};
}

Result<Task> newMachine(const std::string& folder, const Given& given) {
    if (!given.data) return Failure{"--new-machine needs --data"};
    if (given.machine || given.follow || !given.rest.empty())
        return Failure{"--new-machine takes no machine and no script to run"};
    return Task(NewMachine{folder, *given.data, given.outside, given.bare});
}

Result<Task> runScript(const Given& given) {
    if (!given.machine) return Failure{"--machine or --new-machine is missing"};
    if (given.data || given.outside || given.bare)
        return Failure{"--data, --outside and --bare make new machines"};
    if (given.rest.size() > 1) return Failure{"more than one script"};
    RunScript run{*given.machine, std::nullopt, given.follow};
    if (!given.rest.empty()) run.script = given.rest.front();
    return Task(std::move(run));
}

}  // namespace

Result<Task> taskOf(std::span<const char* const> arguments) {
    Given given;
    if (const auto sorted = sortOut(arguments, given); !sorted) return sorted.failure();
    return given.newMachine ? newMachine(*given.newMachine, given) : runScript(given);
}

std::string_view usage() {
    return "usage: kalyxo-drive --machine DIR [--follow] [SCRIPT]\n"
           "       kalyxo-drive --new-machine DIR --data FOLDER [--outside] [--bare]\n";
}

}  // namespace drive
