#pragma once

#include "platform/registry/RegistryNode.h"

namespace platform {

/// A key with all below it once more.
RegistryNode copyOf(const RegistryNode& key);

/// Writes into `target` the keys of `after` in which any value is other than in `before`, or which are not
/// there at all. A key is carried over with all its values, since they belong together; the other keys of
/// `target`, and values that only it has, stay.
void carryOverChanges(const RegistryNode& before, const RegistryNode& after, RegistryNode& target);

}  // namespace platform
