#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>
#include <string>

#include "controls/periodic/PeriodicWidget.h"
#include "platform/components/Component.h"

namespace controls::periodic {

/// The periodic table with the operations that its host calls.
class PeriodicComponent : public platform::Component {
  public:
    PeriodicComponent(platform::ComponentSite& site, QWidget* parent);
    ~PeriodicComponent() override;
    PeriodicComponent(const PeriodicComponent&) = delete;
    PeriodicComponent& operator=(const PeriodicComponent&) = delete;

    QWidget& widget() override;
    std::span<const platform::OperationInfo> operations() const override;
    std::span<const platform::EventInfo> events() const override;
    std::optional<platform::Variant> invoke(std::int32_t dispid, platform::InvokeKind kind,
                                            std::span<const platform::Variant> arguments) override;

    /// @name Operations, called through `invoke`.
    /// @{
    std::string version() const;
    /// True when the name is not empty. The table uses no file of the folder.
    bool setDataFolder(const std::string& dataFolder);
    void redraw();
    std::int32_t getStateA() const;
    std::int32_t getStateB() const;
    /// Any numbers are allowed; see stateOf.
    void setState(std::int32_t first, std::int32_t second);
    /// @}

  private:
    void raiseChosen(int number);

    platform::ComponentSite& site_;
    // Its Qt parent, which belongs to the host, may destroy it first.
    QPointer<PeriodicWidget> table_;
};

/// Creates the component of the module.
std::unique_ptr<platform::Component> createPeriodicComponent(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::periodic
