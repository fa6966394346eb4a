#include "src/pages/ContentChanges.h"

#include <system_error>

namespace kalyxo {

ContentChanges::ContentChanges(const platform::FileSystem& files, const std::string& dataFolder)
    : m_files(files), m_strStartPage(dataFolder + "a.htm"), m_time(timeOfContent()) {}

bool ContentChanges::HaveCome() {
    const auto time = timeOfContent();
    if (time == std::filesystem::file_time_type{} || time == m_time) return false;
    m_time = time;
    return true;
}

std::filesystem::file_time_type ContentChanges::timeOfContent() const {
    const auto file = m_files.nativePath(m_strStartPage);
    std::error_code failed;
    const auto time =
        file ? std::filesystem::last_write_time(*file, failed) : std::filesystem::file_time_type{};
    return failed ? std::filesystem::file_time_type{} : time;
}

}  // namespace kalyxo
