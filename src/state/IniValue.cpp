#include "src/state/IniValue.h"

namespace kalyxo {

std::size_t GetIniValue(std::string_view text, std::string_view key, std::string& out) {
    out.clear();
    const std::size_t keyAt = text.find(key);
    if (keyAt == std::string_view::npos) return 0;
    const std::size_t equals = text.find('=', keyAt);
    if (equals == std::string_view::npos) return 0;
    const std::string_view rest = text.substr(equals + 1);
    const std::string_view value = rest.substr(0, rest.find('\r'));
    if (value.size() > kMaxIniValue) return 0;
    out = value;
    return out.size();
}

}  // namespace kalyxo
