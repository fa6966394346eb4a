#include <QWidget>
#include <array>

#include "platform/components/ComponentModule.h"
#include "platform/components/DispatchMap.h"

using namespace platform;

namespace {

class TestComponent : public Component {
  public:
    TestComponent(ComponentSite& site, QWidget* parent)
        : site_(site), widget_(std::make_unique<QWidget>(parent)) {}
    ~TestComponent() override { raise(-1); }

    QWidget& widget() override { return *widget_; }
    std::span<const OperationInfo> operations() const override;
    std::span<const EventInfo> events() const override { return {}; }
    std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind,
                                  std::span<const Variant> arguments) override;

    std::string version() { return "1.2.3"; }
    std::int32_t raise(std::int32_t number) {
        bool answer = false;
        std::array arguments = {Variant(number), Variant(&answer)};
        site_.raiseEvent(7, arguments);
        raised_ += answer ? 100 : 1;
        return raised_;
    }

  private:
    ComponentSite& site_;
    std::unique_ptr<QWidget> widget_;
    std::int32_t raised_ = 0;
};

constexpr std::array table = {
    PropertyGet<1, &TestComponent::version>("Version"),
    Method<2, &TestComponent::raise>("Raise"),
};
constexpr auto infos = describe(table);

std::span<const OperationInfo> TestComponent::operations() const { return infos; }

std::optional<Variant> TestComponent::invoke(std::int32_t dispid, InvokeKind kind,
                                             std::span<const Variant> arguments) {
    return dispatch(*this, table, dispid, kind, arguments);
}

constexpr std::string_view id = "0A1B2C3D-0000-4000-8000-00000000ABCD";
constexpr std::array<LPARAM, 1> partCommands = {4711};

}  // namespace

extern "C" __attribute__((visibility("default"))) void DllRegisterServer(ModuleRegistrar& registrar) {
    registrar.registerClass(id);
}

extern "C" __attribute__((visibility("default"))) const ComponentModule* DllGetClassObject() {
    static const ComponentModule module{
        ComponentModule::currentInterface,
        id,
        [](ComponentSite& site, QWidget* parent) -> std::unique_ptr<Component> {
            return std::make_unique<TestComponent>(site, parent);
        },
        {":/part/part.html", partCommands}};
    return &module;
}
