#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/components/ComponentHost.h"
#include "platform/components/WebPageInspector.h"
#include "platform/machine/Machine.h"
#include "tests/support/TestFolder.h"

/// Whether a pixel is blue, the colour of nitrogen.
inline bool isBlue(QColor colour) { return colour.blue() > 80 && colour.blue() > 2 * colour.red(); }

/// A machine with drives C: and D: and a browser window of 640 × 480 pixels. Texts and paths here are UTF-8.
class BrowserMachine : public testing::Test {
  protected:
    BrowserMachine();
    ~BrowserMachine() override;

    /// Writes a file, makes the folders above it, and returns its path.
    std::filesystem::path writeBytes(const std::string& dosPath, std::string_view bytes);
    /// The same with a content in code page 1253.
    void write(const std::string& dosPath, const std::string& text) { writeBytes(dosPath, cp1253(text)); }
    /// Copies a file of the operating system.
    void copyFile(const std::string& native, const std::string& dosPath);
    /// A picture of one colour.
    void writePicture(const std::string& dosPath, int width, int height, QColor colour);

    void makeBrowser();
    void closeBrowser() { host_.reset(); }
    /// Navigates as the program does, and waits for the page.
    void open(const std::string& address, std::int32_t flags = 0);
    /// The same without waiting.
    void navigate(const std::string& address, std::int32_t flags = 0);
    /// Clicks a link, and waits for the page.
    bool click(const std::string& linkText);
    /// Runs the event loop until nothing is being loaded.
    void waitForPage();
    void run(int milliseconds);
    /// Runs the event loop until the condition holds, for at most ten seconds; whether it holds.
    bool runUntil(const std::function<bool()>& condition);

    platform::ComponentHost& host() { return *host_; }
    platform::WebPageInspector& page();
    std::string url() { return utf8(page().url()); }
    std::string title() { return utf8(page().title()); }
    /// The page's text, with each run of blanks and line ends as one blank.
    std::string text();
    QImage picture();
    /// The number of pixels in the area that fulfil the condition, or are close to the colour.
    int count(const platform::CRect& area, const std::function<bool(QColor)>& counts);
    int count(const platform::CRect& area, QColor colour);

    /// The widget that gets mouse and keyboard input for the page; null as long as there is no engine.
    QWidget* input();
    void doubleClick(QPoint point);

    void setContentFolder(std::string_view dosPath) { machine_->files().setContentFolder(dosPath); }
    platform::Registry& registry() { return machine_->registry(); }
    std::vector<platform::TraceEntry> takeTrace() { return machine_->trace().take(); }
    /// The addresses of navigations that were cancelled since the last call.
    std::vector<std::string> takeRefused();

    static std::string utf8(std::string_view text);
    static std::string cp1253(std::string_view text);

    /// The addresses of BeforeNavigate events; those for which `refuses` is true are cancelled.
    std::vector<std::string> asked;
    std::function<bool(const std::string&)> refuses = [](const std::string&) { return false; };
    QWidget window;

  private:
    TestFolder folder_;
    std::unique_ptr<platform::Machine> machine_;
    std::unique_ptr<platform::ComponentHost> host_;
};
