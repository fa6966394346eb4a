#pragma once

namespace platform {

/// Whether the host lets this process make user namespaces, which the engine needs to lock pages in. Tried as
/// the engine does: in a process of its own, with the user and the group mapped, and one within the other.
bool userNamespacesWork();

}  // namespace platform
