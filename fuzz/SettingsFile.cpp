#include "fuzz/Target.h"
#include "platform/files/Profile.h"
#include "src/state/DataPaths.h"
#include "src/state/IniValue.h"
#include "tests/support/TestDrives.h"

/// A key, a value to write, and the file cset.ini, in which the program finds its folders.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto parts = partsOf(input, 3);
    std::string value;
    const std::size_t length = kalyxo::GetIniValue(parts[2], parts[0], value);
    require(length == value.size() && length <= kalyxo::kMaxIniValue, "a value has its length");
    drives.put("D:\\a.htm", "");
    drives.put("C:\\k\\cset.ini", parts[2]);
    int asked = 0;
    const auto choose = [&](kalyxo::FolderPurpose) {
        require(++asked < 3, "the user is asked once for each");
        return std::optional<std::string>("D:");
    };
    const auto paths = kalyxo::FindDataPaths(drives.files, {"C:\\k", "C:\\"}, choose);
    require(paths && paths->dataFolder.ends_with('\\'), "the data folder ends with a backslash");
    require(platform::writeProfileString(drives.files, "C:\\k\\cset.ini", "Settings", parts[0], parts[1]),
            "a value is written");
}
