#pragma once

#include <memory>
#include <string_view>

#include "platform/components/Component.h"

namespace controls::molctrl {

/// The class id of the molecule controller.
inline constexpr std::string_view classId = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E104";

/// Makes the molecule controller, which tells its version and shows its name.
std::unique_ptr<platform::Component> createMoleculeController(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::molctrl
