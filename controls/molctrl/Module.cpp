#include "controls/common/Module.h"

#include "controls/molctrl/MoleculeController.h"

const platform::ComponentModule controls::componentModule{
    .classId = controls::molctrl::classId,
    .create = controls::molctrl::createMoleculeController,
    .pagePart = {":/molctrl/controller.html", {}}};
