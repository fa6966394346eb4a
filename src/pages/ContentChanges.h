#pragma once

#include <string>

#include "platform/files/FileSystem.h"

namespace kalyxo {

/// Tells when the content of the data folder has been made anew.
class ContentChanges {
  public:
    /// `dataFolder` ends with a backslash.
    ContentChanges(const platform::FileSystem& files, const std::string& dataFolder);

    /// Whether there was a change since the last question.
    bool HaveCome();

  private:
    /// The time of the start page, which is written with all the rest. Zero while there is none.
    std::filesystem::file_time_type timeOfContent() const;

    const platform::FileSystem& m_files;
    std::string m_strStartPage;
    std::filesystem::file_time_type m_time;
};

}  // namespace kalyxo
