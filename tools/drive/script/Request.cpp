#include "tools/drive/script/Request.h"

#include <utility>

namespace drive {

void Request::fail(std::string error) {
    if (error_.empty()) error_ = std::move(error);
}

Json Request::answer() {
    for (const auto& complete : std::exchange(completions_, {})) complete(*this);
    if (!error_.empty()) return refusal(name(), error_);
    Json answer = {{"cmd", name()}, {"ok", true}};
    answer.update(fields_);
    return answer;
}

Json refusal(std::string_view name, std::string_view error) {
    return {{"cmd", name}, {"ok", false}, {"error", error}};
}

}  // namespace drive
