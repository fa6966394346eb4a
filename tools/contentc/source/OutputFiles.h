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

    /// Adds a file. An error is reported when another file has this path (letter case does not count), or
    /// when the path has characters other than a to z, digits, '.', '-' and '_'.
    void add(const std::string& path, std::string bytes, const SourcePlace& source, Diagnostics& diagnostics);

    /// Whether there is such a file. Letter case does not count, and '/' is the same as '\'.
    bool contains(std::string_view path) const;

    /// By path in lower case.
    const std::map<std::string, File>& files() const { return files_; }

  private:
    std::map<std::string, File> files_;
};

}  // namespace contentc
