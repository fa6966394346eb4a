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
#include "platform/qt/QtChild.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// Keeps a control's widget as large as the window that hosts it.
class Filling : public QObject {
  public:
    Filling(QWidget& container, QWidget* filling) : QObject(filling), filling_(*filling) {
        container.installEventFilter(this);
        filling->setGeometry(container.rect());
        // In a container that is not on show yet it comes on show with it, and is laid out only then.
        if (container.isVisible()) filling->show();
    }

    bool eventFilter(QObject* container, QEvent* event) override {
        if (event->type() == QEvent::Resize) filling_.setGeometry(static_cast<QWidget*>(container)->rect());
        return false;
    }

  private:
    QWidget& filling_;
};

/// The classes that come without a module, and what makes their components.
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

/// What lives on while an event is under way, although the host has gone: the control that raised it, and
/// the site that it talks to.
struct ComponentHost::Hosted : ComponentSite, std::enable_shared_from_this<Hosted> {
    explicit Hosted(EventHandler given) : handler(std::move(given)) {}

    void raiseEvent(std::int32_t dispid, std::span<Variant> arguments) override {
        if (!handler) return;
        const auto alive = shared_from_this();
        const EventHandler called = handler;
        ++raising;
        called(dispid, arguments);
        --raising;
        // The control's own code is still on the stack: it is destroyed once that has returned.
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
        QWidget* const window = control ? control->widget().window() : nullptr;
        const std::unique_ptr<PrintJob> job = PrintJob::begin(document, window);
        if (!job) return false;
        const PrinterConfig& page = job->page();
        paint(job->painter(), QRect(0, 0, page.horzres, page.vertres), page.logpixelsy);
        return true;
    }

    void close() {
        closed = true;
        handler = nullptr;
        if (raising > 0 && control) {
            // Its window may go before it does.
            control->widget().hide();
            control->widget().setParent(nullptr);
        } else {
            control.reset();
        }
    }

    EventHandler handler;
    std::unique_ptr<Component> control;
    int raising = 0;
    bool closed = false;
};

void ComponentHost::addBuiltIn(std::string classId, Creator creator) {
    builtIn()[std::move(classId)] = std::move(creator);
}

std::unique_ptr<ComponentHost> ComponentHost::create(std::string_view classId, QWidget* container,
                                                     EventHandler handler) {
    const auto hosted = std::make_shared<Hosted>(std::move(handler));
    hosted->control = makeComponent(classId, *hosted, container);
    if (!hosted->control) return nullptr;
    makeQtChild<Filling>(*container, &hosted->control->widget());
    QObject::connect(container, &QObject::destroyed, &hosted->control->widget(),
                     [weak = std::weak_ptr(hosted)] {
                         if (const auto still = weak.lock()) still->close();
                     });
    return std::unique_ptr<ComponentHost>(new ComponentHost(hosted));
}

ComponentHost::ComponentHost(std::shared_ptr<Hosted> hosted) : hosted_(std::move(hosted)) {}

ComponentHost::~ComponentHost() { hosted_->close(); }

Component& ComponentHost::control() { return *hosted_->control; }

const Component& ComponentHost::control() const { return *hosted_->control; }

std::optional<Variant> ComponentHost::invoke(std::int32_t dispid, InvokeKind kind,
                                             std::span<const Variant> arguments) {
    const auto alive = hosted_;
    return alive->control ? alive->control->invoke(dispid, kind, arguments) : std::nullopt;
}

std::span<const std::byte> ComponentHost::block(std::int32_t location) const {
    return hosted_->control ? hosted_->control->block(location) : std::span<const std::byte>();
}

std::int32_t ComponentHost::keepBlock(std::span<const std::byte> bytes) {
    return hosted_->control ? hosted_->control->keepBlock(bytes) : 0;
}

void ComponentHost::raiseEvent(std::int32_t dispid, std::span<Variant> arguments) {
    const auto alive = hosted_;
    alive->raiseEvent(dispid, arguments);
}

}  // namespace platform
