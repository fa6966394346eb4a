#include "tests/support/browser/Footprint.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace {

namespace fs = std::filesystem;

struct Process {
    int parent = 0;
    long privatePages = 0;
};

/// Nothing is read of one that ends meanwhile or has ended.
std::map<int, Process> allProcesses() {
    std::map<int, Process> found;
    for (const auto& entry : fs::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != name.npos) continue;
        std::ifstream stat(entry.path() / "stat");
        std::string text;
        std::getline(stat, text);
        // The name in brackets may hold anything.
        const std::size_t bracket = text.rfind(')');
        if (bracket == text.npos || bracket + 4 > text.size() || text[bracket + 2] == 'Z') continue;
        Process process{std::stoi(text.substr(bracket + 4)), 0};
        long size = 0;
        long resident = 0;
        long shared = 0;
        std::ifstream memory(entry.path() / "statm");
        memory >> size >> resident >> shared;
        process.privatePages = resident - shared;
        found[std::stoi(name)] = process;
    }
    return found;
}

bool descends(int process, int from, const std::map<int, Process>& all) {
    for (auto one = all.find(process); one != all.end(); one = all.find(one->second.parent)) {
        if (one->first == from) return true;
    }
    return false;
}

}  // namespace

Footprint footprintNow() {
    const auto all = allProcesses();
    Footprint sum;
    long pages = 0;
    for (const auto& [id, process] : all) {
        if (!descends(id, ::getpid(), all)) continue;
        ++sum.processes;
        pages += process.privatePages;
    }
    sum.megabytes = static_cast<int>(pages * ::sysconf(_SC_PAGESIZE) / (1 << 20));
    return sum;
}
