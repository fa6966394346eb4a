#include "tests/support/browser/BrowserMachine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <cstdlib>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/WebBrowserComponent.h"
#include "platform/text/CodePage1253.h"

using namespace platform;

BrowserMachine::BrowserMachine() {
    MachineConfig config;
    config.drives['D'] = {DriveType::cdrom, "d"};
    for (const char* drive : {"c", "d"}) std::filesystem::create_directory(folder_ / drive);
    machine_ = std::make_unique<Machine>(folder_.path(), config, Registry());
    machine_->trace().enable();
    setMachine(machine_.get());
    BrowserPolicy::instance().setAllowedFolders({"C:\\", "D:\\", "Q:\\"});
    window.resize(640, 480);
}

BrowserMachine::~BrowserMachine() {
    host_.reset();
    BrowserPolicy::instance().setAllowedFolders({});
    setMachine(nullptr);
}

std::filesystem::path BrowserMachine::writeBytes(const std::string& dosPath, std::string_view bytes) {
    std::string name = dosPath;
    std::ranges::replace(name, '\\', '/');
    return folder_.write((name[0] == 'C' ? 'c' : 'd') + name.substr(2), bytes);
}

void BrowserMachine::copyFile(const std::string& native, const std::string& dosPath) {
    std::filesystem::copy_file(native, writeBytes(dosPath, ""),
                               std::filesystem::copy_options::overwrite_existing);
}

void BrowserMachine::writePicture(const std::string& dosPath, int width, int height, QColor colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(QString::fromStdString(writeBytes(dosPath, "").string()), "PNG"));
}

void BrowserMachine::makeBrowser() {
    const auto handler = [this](std::int32_t dispid, std::span<Variant> arguments) {
        ASSERT_EQ(dispid, 100);
        ASSERT_EQ(arguments.size(), 6U);
        asked.push_back(utf8(*arguments[0].get<std::string>()));
        **arguments[5].get<bool*>() = refuses(asked.back());
    };
    host_ = ComponentHost::create(WebBrowserComponent::classId, &window, handler);
    window.show();
}

void BrowserMachine::navigate(const std::string& address, std::int32_t flags) {
    if (!host_) makeBrowser();
    const std::array arguments = {Variant(cp1253(address)), Variant(flags), Variant(), Variant(), Variant()};
    ASSERT_TRUE(host_->invoke(104, InvokeKind::method, arguments));
}

void BrowserMachine::open(const std::string& address, std::int32_t flags) {
    navigate(address, flags);
    waitForPage();
}

bool BrowserMachine::click(const std::string& linkText) {
    const std::size_t before = asked.size();
    if (!page().clickLink(cp1253(linkText))) return false;
    const bool came = runUntil([&] { return asked.size() > before; });
    waitForPage();
    return came;
}

void BrowserMachine::run(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool BrowserMachine::runUntil(const std::function<bool()>& condition) {
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < 10000) run(5);
    return condition();
}

void BrowserMachine::waitForPage() {
    EXPECT_TRUE(runUntil([this] { return !host_->component().busy(); })) << "still loading";
}

WebPageInspector& BrowserMachine::page() { return dynamic_cast<WebPageInspector&>(host_->component()); }

std::string BrowserMachine::text() {
    return QString::fromStdString(utf8(page().text())).simplified().toStdString();
}

QWidget* BrowserMachine::input() {
    QWidget* proxy = host_->component().widget().focusProxy();
    while (proxy && proxy->focusProxy()) proxy = proxy->focusProxy();
    return proxy;
}

QImage BrowserMachine::picture() {
    // The engine hands a new picture over some time after the page says that it is there.
    run(300);
    return window.grab().toImage();
}

void BrowserMachine::doubleClick(QPoint point) {
    // At one and the same time, as the engine counts clicks itself.
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                            QEvent::MouseButtonRelease}) {
        const bool held = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, point, input()->mapToGlobal(point), Qt::LeftButton,
                          held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(input(), &event);
    }
}

int BrowserMachine::count(const CRect& area, const std::function<bool(QColor)>& counts) {
    const QImage image = picture();
    int found = 0;
    for (int y = std::max(area.top, 0); y < std::min(area.bottom, image.height()); ++y) {
        for (int x = std::max(area.left, 0); x < std::min(area.right, image.width()); ++x) {
            if (counts(image.pixelColor(x, y))) ++found;
        }
    }
    return found;
}

int BrowserMachine::count(const CRect& area, QColor colour) {
    return count(area, [colour](QColor pixel) {
        return std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                   std::abs(pixel.blue() - colour.blue()) <
               40;
    });
}

std::vector<std::string> BrowserMachine::takeRefused() {
    std::vector<std::string> refused;
    for (const auto& entry : takeTrace()) {
        if (const auto* one = std::get_if<TraceRefused>(&entry)) refused.push_back(utf8(one->url));
    }
    return refused;
}

std::string BrowserMachine::utf8(std::string_view text) { return toUtf8(text); }

std::string BrowserMachine::cp1253(std::string_view text) { return fromUtf8(text); }
