#pragma once

#include <QPointer>
#include <QWidget>
#include <array>

#include "platform/components/Component.h"

namespace controls {

/// A component that tells its version (operation 1) and shows its name.
class NamedComponent : public platform::Component {
  public:
    /// `versionKind` and `versionName` are kind and name of the operation that tells the version.
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
    // Its Qt parent, which belongs to the host, may destroy it first.
    QPointer<QWidget> plate_;
};

}  // namespace controls
