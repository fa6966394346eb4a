#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace contentc {

/// How many pages make a further thread worthwhile.
inline constexpr std::size_t pagesForThread = 16;

/// Calls `work(0)` to `work(count - 1)` on as many threads as the machine has processors, in any order;
/// returns when all are done. A further thread is begun for each `worth` calls only.
template <typename Work>
void inParallel(std::size_t count, std::size_t worth, Work work) {
    std::atomic<std::size_t> next = 0;
    const auto takeTurns = [&] {
        for (std::size_t i = next++; i < count; i = next++) work(i);
    };
    const std::size_t threads =
        std::min<std::size_t>(count / worth, std::max(1U, std::thread::hardware_concurrency()));
    std::vector<std::jthread> others;
    for (std::size_t i = 1; i < threads; ++i) others.emplace_back(takeTurns);
    takeTurns();
}

}  // namespace contentc
