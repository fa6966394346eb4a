#include "controls/zoom/MoleculeZoom.h"

#include "controls/common/NamedControl.h"

namespace controls::zoom {

std::unique_ptr<platform::Control> createMoleculeZoom(platform::ControlSite&, QWidget* parent) {
    return std::make_unique<NamedControl>(QStringLiteral("Μεγέθυνση μορίου"), platform::InvokeKind::method,
                                          "GetVersion", parent);
}

}  // namespace controls::zoom
