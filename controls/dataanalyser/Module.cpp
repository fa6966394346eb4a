#include "controls/common/Module.h"

#include "controls/dataanalyser/AnalyserComponent.h"

const platform::ComponentModule controls::componentModule{
    .classId = controls::dataanalyser::classId, .create = controls::dataanalyser::createAnalyserComponent};
