#include "controls/common/Module.h"

#include <array>

#include "controls/contract/ClassIds.h"
#include "controls/contract/HostMessages.h"
#include "controls/zoom/MoleculeZoom.h"

namespace {

constexpr std::array commands = {controls::showEnlargedView};

}  // namespace

const platform::ComponentModule controls::componentModule{.classId = controls::moleculeZoomClass,
                                                          .create = controls::zoom::createMoleculeZoom,
                                                          .pagePart = {":/zoom/zoom.html", commands}};
