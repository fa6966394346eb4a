#pragma once

#include <string>
#include <vector>

#include "formats/DataSet.h"
#include "platform/files/FileSystem.h"

namespace controls::dataanalyser {

/// The data sets that can be shown.
class DataLibrary {
  public:
    /// The elements only.
    DataLibrary();
    /// The elements and one set more.
    explicit DataLibrary(formats::DataSet set);
    /// The elements and the sets in the files of the data folder (a DOS path ending in a backslash).
    DataLibrary(const platform::FileSystem& files, const std::string& dataFolder);

    /// The elements, then the others by number.
    const std::vector<formats::DataSet>& sets() const { return sets_; }
    /// The set with a number, the elements when there is none.
    const formats::DataSet& find(int number) const;

    /// What had to be left out and why, a line of Greek for each, in code page 1253.
    const std::vector<std::string>& remarks() const { return remarks_; }

  private:
    void addFile(const platform::FileSystem& files, const std::string& folder, const std::string& name);

    std::vector<formats::DataSet> sets_;
    std::vector<std::string> remarks_;
};

}  // namespace controls::dataanalyser
