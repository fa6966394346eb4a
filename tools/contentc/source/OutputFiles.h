#pragma once

#include <map>
#include <string>
#include <string_view>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// The files of a data folder, in memory.
class OutputFiles {
  public:
    struct File {
        /// Relative to the data folder, with backslashes.
        std::string path;
        std::string bytes;
        /// The source it was made from.
        SourcePlace source;
    };

    /// Adds a file. Reported are a path that another file has (letter case does not count) and a path with
    /// characters other than a to z, digits, '.', '-' and '_'.
    void add(const std::string& path, std::string bytes, const SourcePlace& source, Diagnostics& diagnostics);

    /// Whether there is such a file; letter case does not count, and '/' does for '\'.
    bool contains(std::string_view path) const;

    /// By path in lower case.
    const std::map<std::string, File>& files() const { return m_files; }

  private:
    std::map<std::string, File> m_files;
};

}  // namespace contentc
