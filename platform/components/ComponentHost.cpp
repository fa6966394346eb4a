#include "platform/components/ComponentHost.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <map>
#include <utility>

#include "platform/components/ComponentLibrary.h"
#include "platform/machine/Machine.h"
#include "platform/printing/PrintJob.h"
#include "platform/qt/Filling.h"
#include "platform/qt/QtChild.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// The classes without a module, with the functions that make their components.
std::map<std::string, ComponentHost::Creator, std::less<>>& builtIn() {
    static std::map<std::string, ComponentHost::Creator, std::less<>> classes;
    return classes;
}

std::unique_ptr<Component> makeComponent(std::string_view classId, ComponentSite& site, QWidget* container) {
    for (const auto& [builtInId, create] : builtIn()) {
        if (equalsNoCase(classId, builtInId)) return create(site, container);
    }
    const ComponentModule* module = loadRegisteredClass(classId);
    return module ? module->create(site, container) : nullptr;
}

}  // namespace

/// What must outlive the host while an event is being handled: the component that raised it, and the
/// component's site.
struct ComponentHost::Hosted : ComponentSite, std::enable_shared_from_this<Hosted> {
    explicit Hosted(EventHandler given) : handler(std::move(given)) {}

    void raiseEvent(std::int32_t dispid, std::span<Variant> arguments) override {
        if (!handler) return;
        const auto alive = shared_from_this();
        const EventHandler called = handler;
        ++raising;
        called(dispid, arguments);
        --raising;
        // Code of the component is still on the stack: it is destroyed after that has returned.
        if (closed) QTimer::singleShot(0, QCoreApplication::instance(), [alive] {});
    }

    HWND registerWindow(QWidget& widget, std::string className, MessageProc proc) override {
        return WindowTable::instance().add({&widget, std::move(className), 0, std::move(proc)});
    }

    LRESULT sendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        return WindowTable::instance().send(window, message, wParam, lParam);
    }

    const FileSystem& files() const override { return machine().files(); }

    bool print(std::string_view document, const PagePainter& paint) override {
        const auto alive = shared_from_this();
        QWidget* const window = component ? component->widget().window() : nullptr;
        const std::unique_ptr<PrintJob> job = PrintJob::begin(document, window);
        if (!job) return false;
        const PrinterConfig& page = job->page();
        paint(job->painter(), QRect(0, 0, page.horzres, page.vertres), page.logpixelsy);
        return true;
    }

    void close() {
        closed = true;
        handler = nullptr;
        if (raising > 0 && component) {
            // The window may be destroyed before the component.
            component->widget().hide();
            component->widget().setParent(nullptr);
        } else {
            component.reset();
        }
    }

    EventHandler handler;
    std::unique_ptr<Component> component;
    int raising = 0;
    bool closed = false;
};

void ComponentHost::addBuiltIn(std::string classId, Creator creator) {
    builtIn()[std::move(classId)] = std::move(creator);
}

std::unique_ptr<ComponentHost> ComponentHost::create(std::string_view classId, QWidget* container,
                                                     EventHandler handler) {
    const auto hosted = std::make_shared<Hosted>(std::move(handler));
    hosted->component = makeComponent(classId, *hosted, container);
    if (!hosted->component) return nullptr;
    makeQtChild<Filling>(*container, &hosted->component->widget());
    QObject::connect(container, &QObject::destroyed, &hosted->component->widget(),
                     [weak = std::weak_ptr(hosted)] {
                         if (const auto still = weak.lock()) still->close();
                     });
    return std::unique_ptr<ComponentHost>(new ComponentHost(hosted));
}

ComponentHost::ComponentHost(std::shared_ptr<Hosted> hosted) : hosted_(std::move(hosted)) {}

ComponentHost::~ComponentHost() { hosted_->close(); }

Component& ComponentHost::component() { return *hosted_->component; }

const Component& ComponentHost::component() const { return *hosted_->component; }

std::optional<Variant> ComponentHost::invoke(std::int32_t dispid, InvokeKind kind,
                                             std::span<const Variant> arguments) {
    const auto alive = hosted_;
    return alive->component ? alive->component->invoke(dispid, kind, arguments) : std::nullopt;
}

std::span<const std::byte> ComponentHost::block(std::int32_t location) const {
    return hosted_->component ? hosted_->component->block(location) : std::span<const std::byte>();
}

std::int32_t ComponentHost::keepBlock(std::span<const std::byte> bytes) {
    return hosted_->component ? hosted_->component->keepBlock(bytes) : 0;
}

void ComponentHost::raiseEvent(std::int32_t dispid, std::span<Variant> arguments) {
    const auto alive = hosted_;
    alive->raiseEvent(dispid, arguments);
}

}  // namespace platform
