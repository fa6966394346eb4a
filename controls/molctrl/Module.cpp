#include "controls/common/Module.h"

#include "controls/contract/ClassIds.h"
#include "controls/molctrl/MoleculeController.h"

const platform::ComponentModule controls::componentModule{
    .classId = controls::moleculeControllerClass,
    .create = controls::molctrl::createMoleculeController,
    .pagePart = {":/molctrl/controller.html", {}}};
