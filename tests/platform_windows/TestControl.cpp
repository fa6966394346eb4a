#include <QLineEdit>
#include <QWidget>
#include <array>

#include "platform/automation/ControlModule.h"
#include "platform/automation/DispatchMap.h"

/// A control with a text field.
namespace {

using namespace platform;

class TestControl : public Control {
    static constexpr auto table() {
        return std::array{PropertyGet<2, &TestControl::editWindow>("EditWindow")};
    }

  public:
    TestControl(ControlSite& site, QWidget* parent) : widget_(new QWidget(parent)) {
        auto* const edit = new QLineEdit(widget_);
        edit_ = site.registerWindow(*edit, "Edit",
                                    [](UINT message, WPARAM, LPARAM) -> LRESULT { return message; });
    }
    ~TestControl() override { delete widget_; }

    QWidget& widget() override { return *widget_; }
    std::span<const OperationInfo> operations() const override {
        static const auto infos = describe(table());
        return infos;
    }
    std::span<const EventInfo> events() const override { return {}; }
    std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind,
                                  std::span<const Variant> arguments) override {
        return dispatch(*this, table(), dispid, kind, arguments);
    }

  private:
    std::int32_t editWindow() { return edit_; }

    QWidget* widget_;
    HWND edit_;
};

std::unique_ptr<Control> create(ControlSite& site, QWidget* parent) {
    return std::make_unique<TestControl>(site, parent);
}

}  // namespace

extern "C" const platform::ControlModule* DllGetClassObject() {
    static const platform::ControlModule module{platform::ControlModule::currentInterface,
                                                "11111111-2222-3333-4444-555555555555", &create};
    return &module;
}
