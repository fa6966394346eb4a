#pragma once

#include <memory>

#include "platform/components/Component.h"

namespace controls::zoom {

/// Makes the molecule zoom, which tells its version and shows its name.
std::unique_ptr<platform::Component> createMoleculeZoom(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::zoom
