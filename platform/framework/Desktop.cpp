#include "platform/framework/Desktop.h"

#include <QApplication>
#include <QFont>
#include <QScreen>
#include <QStandardPaths>

#include "platform/automation/BrowserProcess.h"
#include "platform/framework/LightPalette.h"
#include "platform/framework/ProgramStyle.h"

namespace platform {

namespace {

/// A maximised window's borders, left and right or top and bottom.
constexpr int maximisedBorders = 8;

/// An A4 page.
constexpr int dotsPerInch = 600;
constexpr int a4Width = 4960;
constexpr int a4Height = 7016;

/// What is not told another font shows this one.
QFont programFont() {
    constexpr int pixels = 13;
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(pixels);
    return font;
}

std::unique_ptr<QApplication> makeApplication(int& argc, char** argv) {
    prepareProcess();
    return std::make_unique<QApplication>(argc, argv);
}

}  // namespace

Desktop::Desktop(int& argc, char** argv) : application_(makeApplication(argc, argv)) {
    // The name under which the desktop knows the program's windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("kalyxo"));
    QApplication::setStyle(std::make_unique<ProgramStyle>().release());
    QApplication::setFont(programFont());
    wearLightPalette();
}

Desktop::~Desktop() = default;

ScreenConfig Desktop::screen() const {
    const QScreen* const first = QGuiApplication::primaryScreen();
    if (!first) return {};
    return {first->size().width(), first->size().height(), first->depth()};
}

std::map<std::string, int, std::less<>> Desktop::metrics() const {
    const QScreen* const first = QGuiApplication::primaryScreen();
    if (!first) return {};
    const QSize free = first->availableSize();
    return {{"SM_CXMAXIMIZED", free.width() + maximisedBorders},
            {"SM_CYMAXIMIZED", free.height() + maximisedBorders}};
}

PrinterConfig Desktop::printer() const {
    PrinterConfig printer;
    printer.horzres = a4Width;
    printer.vertres = a4Height;
    printer.logpixelsy = dotsPerInch;
    printer.folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString();
    printer.desktop = true;
    return printer;
}

}  // namespace platform
