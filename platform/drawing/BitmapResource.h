#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>

#include "platform/base/Messages.h"

namespace platform {

/// A bitmap resource as a device-independent bitmap: the information header, the colour table if it has one,
/// and the rows from the bottom up.
struct BitmapResource {
    std::span<const std::byte> bytes;
    std::shared_ptr<const void> owner;  ///< of the bytes, when they are not the program file's own
    int scale = 1;  ///< pixels of the picture, across and down, to one of the screen's coordinates
};

/// A resource that is stored so, drawn for the screen's pixels; nothing when there is none of this id.
std::optional<BitmapResource> FindBitmapResource(UINT id);

}  // namespace platform
