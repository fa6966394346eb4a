#include "controls/common/NamedComponent.h"

#include <memory>
#include <string>

#include "controls/common/Version.h"

namespace controls {

NamedComponent::NamedComponent(const QString& name, platform::InvokeKind versionKind,
                               std::string_view versionName, QWidget* parent)
    : operations_{{{1, versionKind, versionName, {}}}}, plate_(new NamePlate(name, parent)) {}

NamedComponent::~NamedComponent() { const std::unique_ptr<NamePlate> last(plate_.data()); }

std::optional<platform::Variant> NamedComponent::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                                        std::span<const platform::Variant> arguments) {
    const platform::OperationInfo& ask = operations_.front();
    if (dispid != ask.dispid || kind != ask.kind || !arguments.empty()) return std::nullopt;
    return platform::Variant(std::string(version()));
}

}  // namespace controls
