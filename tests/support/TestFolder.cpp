#include "tests/support/TestFolder.h"

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

TestFolder::TestFolder() {
    // Names of one length: what fuzzing tries must not depend on the number of the process.
    std::string name = fs::temp_directory_path() / "kalyxo-test-XXXXXX";
    if (::mkdtemp(name.data())) path_ = name;
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path TestFolder::write(const std::string& name, std::string_view content) const {
    fs::path file = path_ / name;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
}

std::string TestFolder::read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    if (!file) return "(no such file)";
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t TestFolder::count() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
}

platform::FileSystem TestFolder::asDrive() const {
    return platform::FileSystem({{'C', platform::DriveType::fixed, path_}});
}

FullDisk::FullDisk(std::size_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FullDisk::~FullDisk() {
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}
