#include "controls/molctrl/MoleculeController.h"

#include "controls/common/NamedComponent.h"

namespace controls::molctrl {

std::unique_ptr<platform::Component> createMoleculeController(platform::ComponentSite&, QWidget* parent) {
    return std::make_unique<NamedComponent>(QStringLiteral("Χειριστήριο μορίου"),
                                            platform::InvokeKind::propertyGet, "Version", parent);
}

}  // namespace controls::molctrl
