#pragma once

#include <memory>

#include "platform/browser/BrowserEngine.h"

namespace platform {

class FindStrip;
class LinkClick;
class PagePrinter;
class PluginWindows;
class WebPage;
class WebView;

/// Qt WebEngine as the browser's engine.
class WebEngine : public BrowserEngine {
  public:
    WebEngine(QWidget* parent, Questions questions);
    ~WebEngine() override;

    QWidget& widget() override;
    bool busy() const override;
    void open(const QUrl& url, const PageStart& start) override;
    void reload() override;
    void forgetPresses() override;
    std::shared_ptr<Dispatch> document() override;

    std::string url() const override;
    std::string title() const override;
    std::string text() override;
    std::string html() override;
    std::optional<CRect> findLink(std::string_view linkText) override;
    bool clickLink(std::string_view linkText) override;
    void updatePluginWindows() override;
    std::string pluginPicture(HWND window) override;

    double scrolled() const override;
    void pointAtLink() override;
    void openFind() override;
    void closeFind() override;
    int textSize() const override;
    void setTextSize(int percent) override;

  private:
    void makePage();
    /// Puts another page in the place of one whose process has ended.
    void replacePage();

    Questions questions_;
    std::unique_ptr<WebView> view_;
    PagePrinter& printer_;  // the view's
    // It is destroyed before its view, which does not own it.
    std::unique_ptr<WebPage> page_;
    std::unique_ptr<PluginWindows> plugins_;
    std::unique_ptr<FindStrip> find_;   // beside the view; null until it is first opened
    std::unique_ptr<LinkClick> click_;  // the last one in the page
};

}  // namespace platform
