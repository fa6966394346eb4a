#pragma once

#include <memory>
#include <utility>

namespace platform {

/// Makes an object whose constructor takes its Qt parent as the last argument. The parent destroys it.
template <class T, class... Arguments>
T& makeQtChild(Arguments&&... arguments) {
    return *std::make_unique<T>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace platform
