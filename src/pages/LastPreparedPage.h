#pragma once

#include <string>

namespace kalyxo {

/// DOS path of the page file that was written last in this run, empty before the first.
inline std::string& LastPreparedPage() {
    static std::string path;
    return path;
}

}  // namespace kalyxo
