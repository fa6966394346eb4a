#include "controls/common/Module.h"

#include "controls/contract/ClassIds.h"
#include "controls/periodic/PeriodicComponent.h"

const platform::ComponentModule controls::componentModule{
    .classId = controls::periodicTableClass, .create = controls::periodic::createPeriodicComponent};
