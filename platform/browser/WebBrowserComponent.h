#pragma once

#include <QUrl>
#include <QWidget>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include "platform/browser/BrowserEngine.h"
#include "platform/browser/FirstExposure.h"
#include "platform/components/DispatchMap.h"

namespace platform {

/// The web browser as a component. The engine costs as much time as the rest of the program's start: it is
/// loaded and started once the window can be seen, or when it is needed before. Addresses are code page
/// 1253: DOS paths (`D:\a.htm`, `c:/cache/1.htm`) or URLs.
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

    /// Goes to an address after raising `BeforeNavigate`. It is loaded when the program is back in its event
    /// loop, unless the program has gone on to another one by then. The flags are recorded; frame, post data
    /// and headers are not used.
    void navigate(const std::string& address, const Variant& flags, const Variant& frame,
                  const Variant& postData, const Variant& headers);
    /// Loads the page again, whatever the level.
    void refresh(const Variant& level);
    /// The document: its command 6 prints the page, 12 copies the selection; it knows no other.
    std::shared_ptr<Dispatch> document();

  private:
    /// Where the program wants to go, not loaded yet; the address is empty when it waits for nothing.
    struct Awaited {
        QUrl url;
        PageStart start;
    };

    /// The engine, made when there is none yet, on its way to where the program wants to go.
    BrowserEngine& engine();
    void makeEngine();
    bool passes(const PageRequest& request);
    bool isCancelled(const std::string& address);
    void sendCommand(const std::string& component, LPARAM command);
    int controlId() const;

    ComponentSite& site_;
    std::unique_ptr<QWidget> area_;  // white until the engine's widget fills it
    PageStart start_;                // of the next page that the program asks for
    Awaited awaited_;
    int textSize_ = 100;                     // until there is an engine
    std::unique_ptr<BrowserEngine> engine_;  // null until it is needed
    FirstExposure exposure_;
};

}  // namespace platform
