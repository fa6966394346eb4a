#pragma once

namespace platform {

/// From now on assistive technology finds the parts that windows draw; done again it changes nothing.
void tellOfDrawnParts();

}  // namespace platform
