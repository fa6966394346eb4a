#include "controls/periodic/PeriodicComponent.h"

#include <array>

#include "controls/common/Version.h"
#include "platform/components/DispatchMap.h"

namespace controls::periodic {

namespace {

using platform::TypeCode;
using platform::Variant;

constexpr std::int32_t elementChosenId = 1;

constexpr auto operationTable = std::array{
    platform::PropertyGet<1, &PeriodicComponent::version>("Version"),
    platform::Method<2, &PeriodicComponent::setDataFolder>("SetDataFolder"),
    platform::Method<3, &PeriodicComponent::redraw>("Redraw"),
    platform::Method<4, &PeriodicComponent::getStateA>("GetStateA"),
    platform::Method<5, &PeriodicComponent::getStateB>("GetStateB"),
    platform::Method<6, &PeriodicComponent::setState>("SetState"),
};
constexpr auto operationInfos = platform::describe(operationTable);

constexpr std::array elementChosenTypes{TypeCode::i2};
constexpr std::array eventInfos{platform::EventInfo{elementChosenId, "ElementChosen", elementChosenTypes}};

}  // namespace

PeriodicComponent::PeriodicComponent(platform::ComponentSite& site, QWidget* parent)
    : site_(site), table_(new PeriodicWidget([this](int number) { raiseChosen(number); }, parent)) {}

PeriodicComponent::~PeriodicComponent() { const std::unique_ptr<PeriodicWidget> last(table_.data()); }

QWidget& PeriodicComponent::widget() { return *table_; }

std::span<const platform::OperationInfo> PeriodicComponent::operations() const { return operationInfos; }

std::span<const platform::EventInfo> PeriodicComponent::events() const { return eventInfos; }

std::optional<Variant> PeriodicComponent::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                                 std::span<const Variant> arguments) {
    if (!table_) return std::nullopt;
    return platform::dispatch(*this, operationTable, dispid, kind, arguments);
}

std::string PeriodicComponent::version() const { return std::string(controls::version); }

bool PeriodicComponent::setDataFolder(const std::string& dataFolder) { return !dataFolder.empty(); }

void PeriodicComponent::redraw() { table_->update(); }

std::int32_t PeriodicComponent::getStateA() const { return firstHalf(table_->state()); }

std::int32_t PeriodicComponent::getStateB() const { return secondHalf(table_->state()); }

void PeriodicComponent::setState(std::int32_t first, std::int32_t second) {
    table_->setState(stateOf(first, second));
}

void PeriodicComponent::raiseChosen(int number) {
    std::array arguments{Variant(static_cast<std::int16_t>(number))};
    site_.raiseEvent(elementChosenId, arguments);
}

std::unique_ptr<platform::Component> createPeriodicComponent(platform::ComponentSite& site, QWidget* parent) {
    return std::make_unique<PeriodicComponent>(site, parent);
}

}  // namespace controls::periodic
