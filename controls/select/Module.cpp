#include "controls/common/Module.h"

#include "controls/select/SelectComponent.h"

const platform::ComponentModule controls::componentModule{.classId = controls::select::classId,
                                                          .create = controls::select::createSelectComponent};
