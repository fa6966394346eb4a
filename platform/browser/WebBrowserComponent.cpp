#include "platform/browser/WebBrowserComponent.h"

#include <QMetaObject>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/DosUrl.h"
#include "platform/browser/EngineLibrary.h"
#include "platform/browser/FillingInSight.h"
#include "platform/browser/FolderAddresses.h"
#include "platform/browser/RequestPolicy.h"
#include "platform/components/ComponentLibrary.h"
#include "platform/machine/Machine.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

constexpr std::int32_t beforeNavigateEvent = 100;

constexpr std::array operationTable = {
    Method<104, &WebBrowserComponent::navigate>("Navigate"),
    Method<105, &WebBrowserComponent::refresh>("Refresh2"),
    PropertyGet<203, &WebBrowserComponent::document>("Document"),
};
constexpr auto operationInfos = describe(operationTable);

constexpr std::array beforeNavigateTypes = {TypeCode::text,    TypeCode::i4,   TypeCode::text,
                                            TypeCode::variant, TypeCode::text, TypeCode::booleanRef};
constexpr std::array<EventInfo, 1> eventInfos = {
    {{beforeNavigateEvent, "BeforeNavigate", beforeNavigateTypes}}};

void record(TraceEntry entry) {
    if (hasMachine()) machine().trace().record(std::move(entry));
}

std::unique_ptr<QWidget> makeArea(QWidget* parent) {
    auto area = std::make_unique<QWidget>(parent);
    QPalette colours = area->palette();
    colours.setColor(QPalette::Window, Qt::white);
    area->setPalette(colours);
    return area;
}

}  // namespace

WebBrowserComponent::WebBrowserComponent(ComponentSite& site, QWidget* parent)
    : site_(site), area_(makeArea(parent)), exposure_(*area_, [this] { engine(); }) {}

WebBrowserComponent::~WebBrowserComponent() = default;

QWidget& WebBrowserComponent::widget() { return *area_; }

std::span<const OperationInfo> WebBrowserComponent::operations() const { return operationInfos; }

std::span<const EventInfo> WebBrowserComponent::events() const { return eventInfos; }

std::optional<Variant> WebBrowserComponent::invoke(std::int32_t dispid, InvokeKind kind,
                                                   std::span<const Variant> arguments) {
    return dispatch(*this, operationTable, dispid, kind, arguments);
}

BrowserEngine& WebBrowserComponent::engine() {
    if (!engine_) makeEngine();
    if (!awaited_.url.isEmpty()) {
        const Awaited next = std::exchange(awaited_, {});
        engine_->open(next.url, next.start);
    }
    return *engine_;
}

void WebBrowserComponent::makeEngine() {
    const auto send = [this](const std::string& component, LPARAM command) {
        sendCommand(component, command);
    };
    engine_ = platform::makeEngine(area_.get(),
                                   {[this](const PageRequest& request) { return passes(request); }, send});
    engine_->setTextSize(textSize_);
    makeQtChild<FillingInSight>(*area_, &engine_->widget());
    area_->setFocusProxy(&engine_->widget());
}

bool WebBrowserComponent::busy() const { return !awaited_.url.isEmpty() || (engine_ && engine_->busy()); }

void WebBrowserComponent::navigate(const std::string& address, const Variant& flags, const Variant&,
                                   const Variant&, const Variant&) {
    const auto* number = flags.get<std::int32_t>();
    record(TraceNavigate{controlId(), address, number ? *number : 0});
    const QUrl url = normalisedUrl(
        urlOfAddress(address, folderLength(address, BrowserPolicy::instance().allowedFolders())));
    if (!passes({RequestKind::program, {}, url})) return;
    awaited_ = {url, std::exchange(start_, {})};
    // Looked at only now, since the engine may have been made while a handler showed a message.
    if (!engine_) return;
    engine_->forgetPresses();
    // Queued, since the program may go on to another address at once, as Back does, and the engine would
    // work for both.
    QMetaObject::invokeMethod(area_.get(), [this] { engine(); }, Qt::QueuedConnection);
}

void WebBrowserComponent::refresh(const Variant&) { engine().reload(); }

std::shared_ptr<Dispatch> WebBrowserComponent::document() { return engine().document(); }

bool WebBrowserComponent::passes(const PageRequest& request) {
    const std::string address = addressOfUrl(request.address);
    // The program is not asked about what a page does by itself, since it might open dialogs.
    const bool cancel = request.kind != RequestKind::onward && isCancelled(address);
    const bool isTakenOver = !cancel && request.kind == RequestKind::mainPage &&
                             BrowserPolicy::instance().isTakenOver(controlId(), address);
    if (!cancel && !isTakenOver && BrowserPolicy::instance().admit(request)) return true;
    record(TraceRefused{address});
    return false;
}

bool WebBrowserComponent::isCancelled(const std::string& address) {
    bool cancel = false;
    std::array arguments = {Variant(address), Variant(std::int32_t{0}), Variant(std::string()),
                            Variant(),        Variant(std::string()),   Variant(&cancel)};
    site_.raiseEvent(beforeNavigateEvent, arguments);
    return cancel;
}

void WebBrowserComponent::sendCommand(const std::string& component, LPARAM command) {
    const ComponentModule* module = loadRegisteredClass(component);
    if (!module) return;
    const auto commands = module->pagePart.commands;
    if (std::ranges::find(commands, command) == commands.end()) return;
    const WindowTable& windows = WindowTable::instance();
    const QWidget* own = windows.widget(windows.nearestHandle(area_.get()));
    if (own) site_.sendMessage(windows.nearestHandle(own->parentWidget()), WM_COMMAND, 0, command);
}

double WebBrowserComponent::scrolled() const { return engine_ ? engine_->scrolled() : 0; }

void WebBrowserComponent::pointAtLink() {
    if (engine_) engine_->pointAtLink();
}

void WebBrowserComponent::openFind() { engine().openFind(); }

void WebBrowserComponent::closeFind() {
    if (engine_) engine_->closeFind();
}

int WebBrowserComponent::textSize() const { return engine_ ? engine_->textSize() : textSize_; }

void WebBrowserComponent::setTextSize(int percent) {
    textSize_ = percent;
    if (engine_) engine_->setTextSize(percent);
}

int WebBrowserComponent::controlId() const {
    const WindowTable& windows = WindowTable::instance();
    const WindowEntry* entry = windows.find(windows.nearestHandle(area_.get()));
    return entry ? entry->id : 0;
}

std::string WebBrowserComponent::url() const { return engine_ ? engine_->url() : std::string(); }

std::string WebBrowserComponent::title() const { return engine_ ? engine_->title() : std::string(); }

std::string WebBrowserComponent::text() { return engine().text(); }

std::string WebBrowserComponent::html() { return engine().html(); }

std::optional<CRect> WebBrowserComponent::findLink(std::string_view linkText) {
    return engine().findLink(linkText);
}

bool WebBrowserComponent::clickLink(std::string_view linkText) { return engine().clickLink(linkText); }

void WebBrowserComponent::updatePluginWindows() {
    if (engine_) engine_->updatePluginWindows();
}

std::string WebBrowserComponent::pluginPicture(HWND window) {
    return engine_ ? engine_->pluginPicture(window) : std::string();
}

}  // namespace platform
