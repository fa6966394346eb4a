#include "tools/drive/script/Act.h"

#include <utility>

namespace drive {

void Act::fail(std::string error) {
    if (m_error.empty()) m_error = std::move(error);
}

Json Act::answer() {
    for (const auto& complete : std::exchange(m_completions, {})) complete(*this);
    if (!m_error.empty()) return refusal(name(), m_error);
    Json answer = {{"cmd", name()}, {"ok", true}};
    answer.update(m_fields);
    return answer;
}

Json refusal(std::string_view name, std::string_view error) {
    return {{"cmd", name}, {"ok", false}, {"error", error}};
}

}  // namespace drive
