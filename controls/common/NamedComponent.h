#pragma once

#include <QPointer>
#include <array>

#include "controls/common/NamePlate.h"
#include "platform/components/Component.h"

namespace controls {

/// A control that tells its version (operation 1) and shows its name.
class NamedComponent : public platform::Component {
  public:
    /// `versionKind` and `versionName` are how the version is asked for.
    NamedComponent(const QString& name, platform::InvokeKind versionKind, std::string_view versionName,
                   QWidget* parent);
    ~NamedComponent() override;
    NamedComponent(const NamedComponent&) = delete;
    NamedComponent& operator=(const NamedComponent&) = delete;

    QWidget& widget() override { return *plate_; }
    std::span<const platform::OperationInfo> operations() const override { return operations_; }
    std::span<const platform::EventInfo> events() const override { return {}; }
    std::optional<platform::Variant> invoke(std::int32_t dispid, platform::InvokeKind kind,
                                            std::span<const platform::Variant> arguments) override;

  private:
    std::array<platform::OperationInfo, 1> operations_;
    // The parent that the host gave it may destroy it first.
    QPointer<NamePlate> plate_;
};

}  // namespace controls
