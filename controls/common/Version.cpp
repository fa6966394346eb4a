#include "controls/common/Version.h"

namespace controls {

std::string_view version() { return "1.0.40"; }

}  // namespace controls
