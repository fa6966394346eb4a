#pragma once

#include <memory>
#include <utility>

namespace platform {

/// Makes an object whose Qt parent, the last argument of its constructor, destroys it.
template <class T, class... Arguments>
T& makeQtChild(Arguments&&... arguments) {
    return *std::make_unique<T>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace platform
