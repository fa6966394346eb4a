#include "platform/framework/Desktop.h"

#include <QApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>

#include "platform/base/Resources.h"
#include "platform/browser/BrowserProcess.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/drawing/LightPalette.h"
#include "platform/drawing/ProgramFont.h"
#include "platform/drawing/ProgramStyle.h"
#include "platform/framework/WinApp.h"
#include "platform/printing/PrintDialogTexts.h"
#include "platform/printing/PrintFile.h"
#include "platform/qt/QtConvert.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"

namespace platform {

using namespace literals;

namespace {

/// The borders of a maximised window: left and right together, or top and bottom.
constexpr int maximisedBorders = 8;

/// An A4 page.
constexpr int dotsPerInch = 600;
constexpr int a4Width = 4960;
constexpr int a4Height = 7016;

/// The size of letters in widgets that have no other font.
constexpr int fontPixels = 13;

/// Tells the user of a printed file, which would appear unnoticed. Later, from the event loop: printing may
/// still be going on.
void tellOfPrint(const std::string& file, bool written) {
    const std::string_view what = written ? "Η εκτύπωση αποθηκεύτηκε στο αρχείο:"_gr
                                          : "Δεν είναι δυνατή η εγγραφή του αρχείου εκτύπωσης:"_gr;
    const std::string text = std::string(what) + "\r\n" + fromUtf8(file);
    QTimer::singleShot(0, qApp, [text] { AfxMessageBox(text); });
}

}  // namespace

Desktop::Desktop(int& argc, char** argv)
    : allowsSandbox_(prepareProcess()),
      application_(std::make_unique<QApplication>(argc, argv)),
      printDialogTexts_(std::make_unique<PrintDialogTexts>()) {
    QCoreApplication::installTranslator(printDialogTexts_.get());
    // By this name the desktop finds the icon for the program's windows.
    QGuiApplication::setDesktopFileName(toQt(Resources().iconName));
    QApplication::setStyle(std::make_unique<ProgramStyle>().release());
    QApplication::setFont(programFont(fontPixels));
    applyLightPalette();
    setPrintListener(tellOfPrint);
}

Desktop::~Desktop() { setPrintListener({}); }

ScreenConfig Desktop::screen() const {
    const QScreen* const first = QGuiApplication::primaryScreen();
    if (!first) return {};
    const QRect area = first->geometry();
    ScreenConfig screen;
    screen.width = area.width();
    screen.height = area.height();
    screen.bitsPerPixel = first->depth();
    screen.left = area.left();
    screen.top = area.top();
    return screen;
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
