#pragma once

#include <string>
#include <vector>

#include "formats/DataSet.h"
#include "platform/files/FileSystem.h"

namespace controls::dataanalyser {

/// The data sets that the analyser can show.
class DataLibrary {
  public:
    /// The elements only.
    DataLibrary();
    /// The elements and one further data set.
    explicit DataLibrary(formats::DataSet set);
    /// The elements and the data sets of the data folder, which is a DOS path with a backslash at its end.
    DataLibrary(const platform::FileSystem& files, const std::string& dataFolder);

    /// The elements, then the others by number.
    const std::vector<formats::DataSet>& sets() const { return sets_; }
    /// The data set with this number, the elements when there is none.
    const formats::DataSet& find(int number) const;

    /// What had to be left out and why: lines of Greek in code page 1253.
    const std::vector<std::string>& remarks() const { return remarks_; }

  private:
    void addFile(const platform::FileSystem& files, const std::string& folder, const std::string& name);

    std::vector<formats::DataSet> sets_;
    std::vector<std::string> remarks_;
};

}  // namespace controls::dataanalyser
