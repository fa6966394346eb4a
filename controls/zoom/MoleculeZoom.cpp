#include "controls/zoom/MoleculeZoom.h"

#include "controls/common/NamedComponent.h"

namespace controls::zoom {

std::unique_ptr<platform::Component> createMoleculeZoom(platform::ComponentSite&, QWidget* parent) {
    return std::make_unique<NamedComponent>(QStringLiteral("Μεγέθυνση μορίου"), platform::InvokeKind::method,
                                            "GetVersion", parent);
}

}  // namespace controls::zoom
