#include "platform/machine/AnswerQueue.h"

#include <algorithm>

namespace platform {

namespace {

bool has(std::span<const BoxAnswer> buttons, BoxAnswer answer) {
    return std::ranges::find(buttons, answer) != buttons.end();
}

}  // namespace

void AnswerQueue::add(const std::vector<BoxAnswer>& answers) {
    waiting_.insert(waiting_.end(), answers.begin(), answers.end());
}

std::optional<BoxAnswer> AnswerQueue::next(std::span<const BoxAnswer> buttons) {
    if (!enabled_ || buttons.empty()) return std::nullopt;
    if (!waiting_.empty()) {
        const BoxAnswer answer = waiting_.front();
        waiting_.pop_front();
        if (has(buttons, answer)) return answer;
    }
    for (const BoxAnswer usual : {BoxAnswer::ok, BoxAnswer::yes}) {
        if (has(buttons, usual)) return usual;
    }
    return buttons.front();
}

}  // namespace platform
