#include "controls/common/Module.h"

#include "controls/contract/ClassIds.h"
#include "controls/dataanalyser/AnalyserComponent.h"

const platform::ComponentModule controls::componentModule{
    .classId = controls::dataAnalyserClass, .create = controls::dataanalyser::createAnalyserComponent};
