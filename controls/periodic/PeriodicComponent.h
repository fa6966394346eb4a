#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "controls/periodic/PeriodicWidget.h"
#include "platform/components/Component.h"

namespace controls::periodic {

/// The class id of the periodic table.
inline constexpr std::string_view classId = "5B0C1E52-6C1A-4B0E-9F57-2D7A51C3E101";

/// The periodic table as its host sees it.
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
    /// True when a folder is named. The table needs none of its files.
    bool setDataFolder(const std::string& dataFolder);
    void redraw();
    std::int32_t getStateA() const;
    std::int32_t getStateB() const;
    /// Takes any numbers; see stateOf.
    void setState(std::int32_t first, std::int32_t second);
    /// @}

  private:
    void raiseChosen(int number);

    platform::ComponentSite& site_;
    // The parent that the host gave it may destroy it first.
    QPointer<PeriodicWidget> table_;
};

/// Makes the control of a module.
std::unique_ptr<platform::Component> createPeriodicComponent(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::periodic
