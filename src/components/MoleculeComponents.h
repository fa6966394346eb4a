#pragma once

#include <string>

#include "controls/contract/ClassIds.h"
#include "src/components/Component.h"

namespace kalyxo {

/// The molecule controller. The program creates it only to read its version.
class CMolCtrl : public Component<CMolCtrl> {
  public:
    static constexpr std::string_view kName = "CMolCtrl";
    static constexpr std::string_view kClass = controls::moleculeControllerClass;

    std::string Version() { return Get<std::string>(1); }
};

/// The molecule zoom. The program creates it only to read its version.
class CKzZoom : public Component<CKzZoom> {
  public:
    static constexpr std::string_view kName = "CKzZoom";
    static constexpr std::string_view kClass = controls::moleculeZoomClass;

    std::string GetVersion() { return Method<std::string>(1); }
};

}  // namespace kalyxo
