#include "controls/common/Module.h"

#include "controls/periodic/PeriodicComponent.h"

const platform::ComponentModule controls::componentModule{
    .classId = controls::periodic::classId, .create = controls::periodic::createPeriodicComponent};
