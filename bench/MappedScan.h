#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

/// The measure for the word search: the plainest quick way to look for a word in the file of occurrences.
namespace bench {

/// A file mapped into memory and touched once.
class MappedFile {
  public:
    explicit MappedFile(const std::filesystem::path& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    const char* bytes() const { return bytes_; }
    std::size_t size() const { return size_; }

  private:
    const char* bytes_ = nullptr;
    std::size_t size_ = 0;
};

/// How often a word occurs. As plain C: the word and its NUL compared at the start of each record.
int countPlainly(const MappedFile& occurrences, const std::string& word);

}  // namespace bench
