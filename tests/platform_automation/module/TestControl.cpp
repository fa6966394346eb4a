#include <QWidget>
#include <array>

#include "platform/automation/ControlModule.h"
#include "platform/automation/DispatchMap.h"

using namespace platform;

namespace {

class TestControl : public Control {
  public:
    TestControl(ControlSite& site, QWidget* parent)
        : site_(site), widget_(std::make_unique<QWidget>(parent)) {}
    ~TestControl() override { raise(-1); }

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
    ControlSite& site_;
    std::unique_ptr<QWidget> widget_;
    std::int32_t raised_ = 0;
};

constexpr std::array table = {
    PropertyGet<1, &TestControl::version>("Version"),
    Method<2, &TestControl::raise>("Raise"),
};
constexpr auto infos = describe(table);

std::span<const OperationInfo> TestControl::operations() const { return infos; }

std::optional<Variant> TestControl::invoke(std::int32_t dispid, InvokeKind kind,
                                           std::span<const Variant> arguments) {
    return dispatch(*this, table, dispid, kind, arguments);
}

constexpr std::string_view id = "0A1B2C3D-0000-4000-8000-00000000ABCD";
constexpr std::array<LPARAM, 1> partCommands = {4711};

}  // namespace

extern "C" __attribute__((visibility("default"))) void DllRegisterServer(ModuleRegistrar& registrar) {
    registrar.registerClass(id);
}

extern "C" __attribute__((visibility("default"))) const ControlModule* DllGetClassObject() {
    static const ControlModule module{ControlModule::currentInterface,
                                      id,
                                      [](ControlSite& site, QWidget* parent) -> std::unique_ptr<Control> {
                                          return std::make_unique<TestControl>(site, parent);
                                      },
                                      {":/part/part.html", partCommands}};
    return &module;
}
