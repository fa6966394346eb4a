#pragma once

#include <memory>

#include "platform/components/Component.h"

namespace controls::molctrl {

/// Makes the molecule controller, which tells its version and shows its name.
std::unique_ptr<platform::Component> createMoleculeController(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::molctrl
