#include "bench/MappedScan.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

#include "formats/WordRecords.h"

namespace bench {

MappedFile::MappedFile(const std::filesystem::path& path) {
    const int file = ::open(path.c_str(), O_RDONLY);
    struct stat status{};
    ::fstat(file, &status);
    size_ = static_cast<std::size_t>(status.st_size);
    void* const mapped = ::mmap(nullptr, size_, PROT_READ, MAP_SHARED | MAP_POPULATE, file, 0);
    ::close(file);
    bytes_ = mapped == MAP_FAILED ? nullptr : static_cast<const char*>(mapped);
}

MappedFile::~MappedFile() { ::munmap(const_cast<char*>(bytes_), size_); }

int countPlainly(const MappedFile& occurrences, const std::string& word) {
    const std::size_t length = word.size() + 1;
    const char* const end = occurrences.bytes() + occurrences.size();
    int found = 0;
    for (const char* record = occurrences.bytes(); record + formats::occurrenceRecordSize <= end;
         record += formats::occurrenceRecordSize) {
        if (std::memcmp(record, word.c_str(), length) == 0) ++found;
    }
    return found;
}

}  // namespace bench
