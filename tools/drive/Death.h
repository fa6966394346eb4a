#pragma once

namespace drive {

/// Has the process end with exit status 1 and a line on standard error when the program dies of a signal,
/// where nobody else looks after that.
void reportDeath();

}  // namespace drive
