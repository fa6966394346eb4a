#include "controls/molctrl/MoleculeController.h"

#include "controls/common/NamedControl.h"

namespace controls::molctrl {

std::unique_ptr<platform::Control> createMoleculeController(platform::ControlSite&, QWidget* parent) {
    return std::make_unique<NamedControl>(QStringLiteral("Χειριστήριο μορίου"),
                                          platform::InvokeKind::propertyGet, "Version", parent);
}

}  // namespace controls::molctrl
