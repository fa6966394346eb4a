#include "platform/browser/WebBrowserComponent.h"

#include <QCursor>
#include <QPointer>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/DosUrl.h"
#include "platform/browser/FindStrip.h"
#include "platform/browser/FolderAddresses.h"
#include "platform/browser/LinkClick.h"
#include "platform/browser/PagePrinter.h"
#include "platform/browser/PageQuestions.h"
#include "platform/browser/PluginWindows.h"
#include "platform/browser/RequestPolicy.h"
#include "platform/browser/WebPage.h"
#include "platform/browser/WebView.h"
#include "platform/components/ComponentLibrary.h"
#include "platform/machine/Machine.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/QtConvert.h"

namespace platform {

namespace {

constexpr std::int32_t beforeNavigateEvent = 100;
constexpr std::int32_t printCommand = 6;
constexpr std::int32_t copyCommand = 12;

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

/// The page as an automation object; it does nothing once the page is gone.
class Document : public Dispatch {
  public:
    /// `find` is null when the strip has never been opened.
    Document(WebPage& page, PagePrinter& printer, FindStrip* find)
        : page_(&page), printer_(&printer), find_(find) {}

    bool exec(std::int32_t command) override {
        if (page_ && command == copyCommand) {
            if (!find_ || !find_->copySelection()) page_->copySelection();
            return true;
        }
        if (printer_ && command == printCommand) {
            printer_->print();
            return true;
        }
        return false;
    }

  private:
    QPointer<WebPage> page_;
    QPointer<PagePrinter> printer_;
    QPointer<FindStrip> find_;
};

void record(TraceEntry entry) {
    if (hasMachine()) machine().trace().record(std::move(entry));
}

}  // namespace

WebBrowserComponent::WebBrowserComponent(ComponentSite& site, QWidget* parent)
    : site_(site),
      view_(std::make_unique<WebView>(parent)),
      printer_(&makeQtChild<PagePrinter>(*view_)),
      exposure_(*view_, [this] { page(); }) {}

WebBrowserComponent::~WebBrowserComponent() = default;

QWidget& WebBrowserComponent::widget() { return *view_; }

std::span<const OperationInfo> WebBrowserComponent::operations() const { return operationInfos; }

std::span<const EventInfo> WebBrowserComponent::events() const { return eventInfos; }

std::optional<Variant> WebBrowserComponent::invoke(std::int32_t dispid, InvokeKind kind,
                                                   std::span<const Variant> arguments) {
    return dispatch(*this, operationTable, dispid, kind, arguments);
}

WebPage& WebBrowserComponent::page() {
    if (page_) return *page_;
    page_ = std::make_unique<WebPage>([this](const PageRequest& request) { return passes(request); },
                                      [this] { return view_->presses().take(); }, nullptr);
    page_->setCommandHandler(
        [this](const std::string& component, LPARAM command) { sendCommand(component, command); });
    plugins_ = std::make_unique<PluginWindows>(*view_, *page_);
    view_->open(*page_);
    if (!awaited_.isEmpty()) page_->open(std::exchange(awaited_, QUrl()), std::exchange(start_, {}));
    return *page_;
}

bool WebBrowserComponent::busy() const {
    if (!page_) return !awaited_.isEmpty();
    return (click_ && click_->pending()) || page_->busy() || plugins_->busy() || printer_->busy() ||
           anyQuestionOpen();
}

void WebBrowserComponent::navigate(const std::string& address, const Variant& flags, const Variant&,
                                   const Variant&, const Variant&) {
    const auto* number = flags.get<std::int32_t>();
    record(TraceNavigate{controlId(), address, number ? *number : 0});
    const QUrl url = normalisedUrl(
        urlOfAddress(address, folderLength(address, BrowserPolicy::instance().allowedFolders())));
    if (!passes({RequestKind::program, {}, url})) return;
    view_->presses().forget();
    // Looked at only now, since the page may have been made while a handler showed a message.
    if (page_) {
        page_->open(url, std::exchange(start_, {}));
    } else {
        awaited_ = url;
    }
}

void WebBrowserComponent::refresh(const Variant&) { page().reload(); }

std::shared_ptr<Dispatch> WebBrowserComponent::document() {
    return std::make_shared<Document>(page(), *printer_, find_.get());
}

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
    const QWidget* own = windows.widget(windows.nearestHandle(view_.get()));
    if (own) site_.sendMessage(windows.nearestHandle(own->parentWidget()), WM_COMMAND, 0, command);
}

double WebBrowserComponent::scrolled() const {
    return page_ ? page_->scrollPosition().y() / page_->zoomFactor() : 0;
}

void WebBrowserComponent::pointAtLink() {
    if (!page_ || !view_->presses().lastWasKey()) return;
    if (const auto link = focusedLinkOf(*page_)) {
        QCursor::setPos(view_->mapToGlobal(toQt(CPoint{link->left, link->top + link->Height() / 2})));
    }
}

void WebBrowserComponent::openFind() {
    page();
    if (!find_) find_ = std::make_unique<FindStrip>(*view_);
    find_->open();
}

void WebBrowserComponent::closeFind() {
    if (find_) find_->close();
}

int WebBrowserComponent::textSize() const { return view_->textSize(); }

void WebBrowserComponent::setTextSize(int percent) { view_->setTextSize(percent); }

int WebBrowserComponent::controlId() const {
    const WindowTable& windows = WindowTable::instance();
    const WindowEntry* entry = windows.find(windows.nearestHandle(view_.get()));
    return entry ? entry->id : 0;
}

std::string WebBrowserComponent::url() const { return page_ ? addressOfUrl(page_->url()) : std::string(); }

std::string WebBrowserComponent::title() const { return page_ ? fromQt(page_->title()) : std::string(); }

std::string WebBrowserComponent::text() { return fromQt(textOf(page())); }

std::string WebBrowserComponent::html() { return fromQt(htmlOf(page())); }

std::optional<CRect> WebBrowserComponent::findLink(std::string_view linkText) {
    return findLinkOf(page(), linkText);
}

bool WebBrowserComponent::clickLink(std::string_view linkText) {
    const auto link = findLink(linkText);
    if (!link) return false;
    const CPoint middle{(link->left + link->right) / 2, (link->top + link->bottom) / 2};
    click_ = std::make_unique<LinkClick>(page(), [this, middle] { view_->click(middle); });
    return true;
}

void WebBrowserComponent::updatePluginWindows() {
    if (plugins_) plugins_->update();
}

std::string WebBrowserComponent::pluginPicture(HWND window) {
    return plugins_ ? plugins_->picture(window).toStdString() : std::string();
}

}  // namespace platform
