#include "controls/periodic/PeriodicControl.h"

#include <array>

#include "controls/common/Version.h"
#include "platform/automation/DispatchMap.h"

namespace controls::periodic {

namespace {

using platform::TypeCode;
using platform::Variant;

constexpr std::int32_t elementChosenId = 1;

constexpr auto operationTable = std::array{
    platform::PropertyGet<1, &PeriodicControl::version>("Version"),
    platform::Method<2, &PeriodicControl::setDataFolder>("SetDataFolder"),
    platform::Method<3, &PeriodicControl::redraw>("Redraw"),
    platform::Method<4, &PeriodicControl::getStateA>("GetStateA"),
    platform::Method<5, &PeriodicControl::getStateB>("GetStateB"),
    platform::Method<6, &PeriodicControl::setState>("SetState"),
};
constexpr auto operationInfos = platform::describe(operationTable);

constexpr std::array elementChosenTypes{TypeCode::i2};
constexpr std::array eventInfos{platform::EventInfo{elementChosenId, "ElementChosen", elementChosenTypes}};

}  // namespace

PeriodicControl::PeriodicControl(platform::ControlSite& site, QWidget* parent)
    : site_(site), table_(new PeriodicWidget([this](int number) { raiseChosen(number); }, parent)) {}

PeriodicControl::~PeriodicControl() { const std::unique_ptr<PeriodicWidget> last(table_.data()); }

QWidget& PeriodicControl::widget() { return *table_; }

std::span<const platform::OperationInfo> PeriodicControl::operations() const { return operationInfos; }

std::span<const platform::EventInfo> PeriodicControl::events() const { return eventInfos; }

std::optional<Variant> PeriodicControl::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                               std::span<const Variant> arguments) {
    if (!table_) return std::nullopt;
    return platform::dispatch(*this, operationTable, dispid, kind, arguments);
}

std::string PeriodicControl::version() const { return std::string(controls::version()); }

bool PeriodicControl::setDataFolder(const std::string& dataFolder) { return !dataFolder.empty(); }

void PeriodicControl::redraw() { table_->update(); }

std::int32_t PeriodicControl::getStateA() const { return firstHalf(table_->state()); }

std::int32_t PeriodicControl::getStateB() const { return secondHalf(table_->state()); }

void PeriodicControl::setState(std::int32_t first, std::int32_t second) {
    table_->setState(stateOf(first, second));
}

void PeriodicControl::raiseChosen(int number) {
    std::array arguments{Variant(static_cast<std::int16_t>(number))};
    site_.raiseEvent(elementChosenId, arguments);
}

std::unique_ptr<platform::Control> createPeriodicControl(platform::ControlSite& site, QWidget* parent) {
    return std::make_unique<PeriodicControl>(site, parent);
}

}  // namespace controls::periodic
