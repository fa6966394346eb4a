#pragma once

#include <cstdlib>
#include <iostream>
#include <optional>
#include <utility>

namespace bench {

/// A value that a benchmark cannot do without. It ends the program when it is absent, so that nothing is
/// measured that was never prepared.
template <class T>
T required(std::optional<T> value) {
    if (!value) {
        std::cerr << "a value that a benchmark needs is absent\n";
        std::abort();
    }
    return *std::move(value);
}

}  // namespace bench
