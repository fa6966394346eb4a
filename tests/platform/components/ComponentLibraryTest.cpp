#include "platform/components/ComponentLibrary.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <filesystem>

#include "platform/components/ComponentHost.h"
#include "platform/machine/Machine.h"
#include "tests/support/TestFolder.h"

using namespace platform;

namespace {

constexpr const char* testId = "0A1B2C3D-0000-4000-8000-00000000ABCD";
constexpr const char* otherInterfaceId = "0A1B2C3D-0000-4000-8000-00000000EEEE";

/// A machine whose drive C: has the test modules in C:\ActiveX.
class ComponentLibrary : public testing::Test {
  protected:
    ComponentLibrary() {
        machine_.trace().enable();
        setMachine(&machine_);
        folder_.write("c/ActiveX/text.ocx", "not a module");
        std::filesystem::copy(MODULES, folder_ / "c/ActiveX", std::filesystem::copy_options::recursive);
    }
    ~ComponentLibrary() override { setMachine(nullptr); }

    void enter(const std::string& id, const std::string& path) {
        machine_.registry()
            .createKey(HKEY_CLASSES_ROOT, "CLSID\\{" + id + "}\\InprocServer32")
            ->setString("", path);
    }
    std::unique_ptr<ComponentHost> make(const std::string& id, ComponentHost::EventHandler handler = {}) {
        return ComponentHost::create(id, &window_, std::move(handler));
    }
    std::unique_ptr<ComponentHost> makeTestComponent(ComponentHost::EventHandler handler = {}) {
        enter(testId, "C:\\ActiveX\\TestComponent.ocx");
        // In lower case, as pages may write it.
        return make("0a1b2c3d-0000-4000-8000-00000000abcd", std::move(handler));
    }
    template <class R, class... A>
    static R call(ComponentHost& host, std::int32_t dispid, A... arguments) {
        const std::vector<Variant> packed{Variant(arguments)...};
        const auto result = host.invoke(dispid, InvokeKind::method, packed);
        const R* value = result ? result->get<R>() : nullptr;
        return value ? *value : R{};
    }

    TestFolder folder_;
    Machine machine_{folder_.path(), MachineConfig{}, Registry{}};
    QWidget window_;
};

TEST_F(ComponentLibrary, PassesOverWhatIsNoModule) {
    for (const char* path : {"C:\\ActiveX\\nix.ocx", "C:\\ActiveX\\text.ocx", "C:\\ActiveX", "Q:\\x.ocx", "",
                             "TestComponent.ocx", "C:\\ActiveX\\NoRegistration.ocx"}) {
        EXPECT_FALSE(registerModule(path)) << path;
        enter(testId, path);
        EXPECT_FALSE(make(testId)) << path;
    }
    EXPECT_TRUE(machine_.trace().take().empty());
}

TEST_F(ComponentLibrary, RefusesOtherInterfacesAndOtherClasses) {
    EXPECT_FALSE(make(testId)) << "not registered";
    EXPECT_TRUE(registerModule("C:\\ActiveX\\OtherInterface.ocx"));
    EXPECT_FALSE(make(otherInterfaceId));
    enter(otherInterfaceId, "C:\\ActiveX\\TestComponent.ocx");
    EXPECT_FALSE(make(otherInterfaceId)) << "the module serves another class";
}

TEST_F(ComponentLibrary, FillsItsWindow) {
    window_.show();
    const auto host = makeTestComponent();
    window_.resize(320, 240);
    EXPECT_EQ(host->component().widget().size(), QSize(320, 240));
}

TEST_F(ComponentLibrary, TakesTheHandlersAnswerBack) {
    std::vector<std::int32_t> numbers;
    const auto host = makeTestComponent([&](std::int32_t dispid, std::span<Variant> arguments) {
        EXPECT_EQ(dispid, 7);
        numbers.push_back(*arguments[0].get<std::int32_t>());
        **arguments[1].get<bool*>() = numbers.back() == 2;
    });
    EXPECT_EQ(call<std::int32_t>(*host, 2, std::int32_t{1}), 1);
    EXPECT_EQ(call<std::int32_t>(*host, 2, std::int32_t{2}), 101);
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{1, 2}));
}

TEST_F(ComponentLibrary, LetsAHandlerDestroyTheComponent) {
    std::unique_ptr<ComponentHost> host;
    int events = 0;
    host = makeTestComponent([&](std::int32_t, std::span<Variant>) {
        ++events;
        host.reset();
    });
    EXPECT_EQ(call<std::int32_t>(*host, 2, std::int32_t{1}), 1);
    EXPECT_FALSE(host);
    QTest::qWait(20);
    EXPECT_EQ(events, 1) << "the last event of the component does not arrive";
    EXPECT_TRUE(window_.findChildren<QWidget*>().isEmpty());
}

TEST_F(ComponentLibrary, SurvivesTheEndOfItsWindow) {
    enter(testId, "C:\\ActiveX\\TestComponent.ocx");
    auto window = std::make_unique<QWidget>();
    const auto host = ComponentHost::create(testId, window.get(), {});
    window.reset();
    EXPECT_FALSE(host->invoke(1, InvokeKind::propertyGet, {}));
}

}  // namespace
