#include "controls/common/Module.h"

#include "controls/contract/ClassIds.h"
#include "controls/select/SelectComponent.h"

const platform::ComponentModule controls::componentModule{.classId = controls::browseSelectionClass,
                                                          .create = controls::select::createSelectComponent};
