#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>

#include "platform/base/Messages.h"

namespace platform {

/// A bitmap resource as a device-independent bitmap: the information header, the colour table if there is
/// one, and the rows from bottom to top.
struct BitmapResource {
    std::span<const std::byte> bytes;
    std::shared_ptr<const void> owner;  ///< keeps the bytes, unless they are part of the program file
    int scale = 1;                      ///< pixels of the picture per logical pixel, across and down
};

/// The bitmap resource with this id, in the version for this screen; nothing when there is none.
std::optional<BitmapResource> FindBitmapResource(UINT id);

}  // namespace platform
