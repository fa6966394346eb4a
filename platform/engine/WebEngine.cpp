#include "platform/engine/WebEngine.h"

#include <QCursor>
#include <QMetaObject>
#include <QPointer>
#include <utility>

#include "platform/browser/DosUrl.h"
#include "platform/engine/FindStrip.h"
#include "platform/engine/LinkClick.h"
#include "platform/engine/PagePrinter.h"
#include "platform/engine/PageQuestions.h"
#include "platform/engine/PluginWindows.h"
#include "platform/engine/WebPage.h"
#include "platform/engine/WebView.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/QtConvert.h"

namespace platform {

namespace {

constexpr std::int32_t printCommand = 6;
constexpr std::int32_t copyCommand = 12;

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

}  // namespace

WebEngine::WebEngine(QWidget* parent, Questions questions)
    : questions_(std::move(questions)),
      view_(std::make_unique<WebView>(parent)),
      printer_(makeQtChild<PagePrinter>(*view_, [this] { return page_->isFormer(); })) {
    makePage();
}

void WebEngine::makePage() {
    page_ = std::make_unique<WebPage>(questions_.passes, [this] { return view_->presses().take(); }, nullptr);
    page_->setCommandHandler(questions_.sendCommand);
    // Not from within the page, which is destroyed.
    page_->setSuccessor([this](const QUrl& url, const PageStart& start) {
        const auto replace = [this, url, start] {
            replacePage();
            page_->open(url, start);
        };
        QMetaObject::invokeMethod(view_.get(), replace, Qt::QueuedConnection);
    });
    plugins_ = std::make_unique<PluginWindows>(*view_, *page_);
    view_->open(*page_);
}

void WebEngine::replacePage() {
    click_.reset();
    plugins_.reset();
    const std::unique_ptr<WebPage> former = std::move(page_);
    makePage();
    view_->setTextSize(view_->textSize());
}

WebEngine::~WebEngine() = default;

QWidget& WebEngine::widget() { return *view_; }

bool WebEngine::busy() const {
    return (click_ && click_->pending()) || page_->busy() || plugins_->busy() || printer_.busy() ||
           anyQuestionOpen();
}

void WebEngine::open(const QUrl& url, const PageStart& start) { page_->open(url, start); }

void WebEngine::reload() { page_->reload(); }

void WebEngine::forgetPresses() { view_->presses().forget(); }

std::shared_ptr<Dispatch> WebEngine::document() {
    return std::make_shared<Document>(*page_, printer_, find_.get());
}

std::string WebEngine::url() const { return addressOfUrl(page_->url()); }

std::string WebEngine::title() const { return fromQt(page_->title()); }

std::string WebEngine::text() { return fromQt(textOf(*page_)); }

std::string WebEngine::html() { return fromQt(htmlOf(*page_)); }

std::optional<CRect> WebEngine::findLink(std::string_view linkText) { return findLinkOf(*page_, linkText); }

bool WebEngine::clickLink(std::string_view linkText) {
    const auto link = findLink(linkText);
    if (!link) return false;
    const CPoint middle{(link->left + link->right) / 2, (link->top + link->bottom) / 2};
    click_ = std::make_unique<LinkClick>(*page_, [this, middle] { view_->click(middle); });
    return true;
}

void WebEngine::updatePluginWindows() { plugins_->update(); }

std::string WebEngine::pluginPicture(HWND window) { return plugins_->picture(window).toStdString(); }

double WebEngine::scrolled() const {
    return page_->scrollPosition().y() / (page_->zoomFactor() * view_->devicePixelRatioF());
}

void WebEngine::pointAtLink() {
    if (!view_->presses().lastWasKey()) return;
    if (const auto link = focusedLinkOf(*page_)) {
        QCursor::setPos(view_->mapToGlobal(toQt(CPoint{link->left, link->top + link->Height() / 2})));
    }
}

void WebEngine::openFind() {
    if (!find_) find_ = std::make_unique<FindStrip>(*view_);
    find_->open();
}

void WebEngine::closeFind() {
    if (find_) find_->close();
}

int WebEngine::textSize() const { return view_->textSize(); }

void WebEngine::setTextSize(int percent) { view_->setTextSize(percent); }

}  // namespace platform
