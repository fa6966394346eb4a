#pragma once

#include <QUrl>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include "platform/browser/FirstExposure.h"
#include "platform/components/DispatchMap.h"
#include "platform/components/PageTools.h"
#include "platform/components/WebPageInspector.h"

namespace platform {

class FindStrip;
class LinkClick;
struct PageRequest;
class PagePrinter;
class PluginWindows;
class WebPage;
class WebView;

/// The web browser as a component. The engine costs as much time as the rest of the program's start: it is
/// started once the window can be seen, or when it is needed before. Addresses are code page 1253: DOS paths
/// (`D:\a.htm`, `c:/cache/1.htm`) or URLs.
class WebBrowserComponent : public Component, public WebPageInspector, public PageTools {
  public:
    /// Its published class id.
    static constexpr std::string_view classId = "EAB22AC3-30C1-11CF-A7EB-0000C05BAE0B";

    WebBrowserComponent(ComponentSite& site, QWidget* parent);
    ~WebBrowserComponent() override;

    QWidget& widget() override;
    std::span<const OperationInfo> operations() const override;
    std::span<const EventInfo> events() const override;
    std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind,
                                  std::span<const Variant> arguments) override;
    bool busy() const override;

    std::string url() const override;
    std::string title() const override;
    std::string text() override;
    std::string html() override;
    std::optional<CRect> findLink(std::string_view linkText) override;
    bool clickLink(std::string_view linkText) override;
    void updatePluginWindows() override;
    std::string pluginPicture(HWND window) override;

    double scrolled() const override;
    void beginNextPage(PageStart start) override { start_ = std::move(start); }
    void pointAtLink() override;
    void openFind() override;
    void closeFind() override;
    int textSize() const override;
    void setTextSize(int percent) override;

    /// Goes to an address after raising `BeforeNavigate`. The flags are recorded; frame, post data and
    /// headers are not used.
    void navigate(const std::string& address, const Variant& flags, const Variant& frame,
                  const Variant& postData, const Variant& headers);
    /// Loads the page again, whatever the level.
    void refresh(const Variant& level);
    /// The document: its command 6 prints the page, 12 copies the selection; it knows no other.
    std::shared_ptr<Dispatch> document();

  private:
    WebPage& page();
    bool passes(const PageRequest& request);
    bool isCancelled(const std::string& address);
    void sendCommand(const std::string& component, LPARAM command);
    int controlId() const;

    ComponentSite& site_;
    std::unique_ptr<WebView> view_;
    PagePrinter* printer_;  // the view's
    QUrl awaited_;          // where to go once there is a page
    PageStart start_;       // of the next page that the program asks for
    // Null until the engine is needed. It is destroyed before its view, which does not own it.
    std::unique_ptr<WebPage> page_;
    std::unique_ptr<PluginWindows> plugins_;  // with the page
    std::unique_ptr<FindStrip> find_;         // beside the view; null until it is first opened
    FirstExposure exposure_;
    std::unique_ptr<LinkClick> click_;  // the last one in the page
};

}  // namespace platform
