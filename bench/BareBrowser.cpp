#include <QApplication>
#include <QWebEngineView>
#include <cstdio>

#include <unistd.h>

/// The measure for start time and memory: a program that does nothing but show a page in a browser window. It
/// says so on its standard output and then waits to be ended.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication application(argc, argv);
    QWebEngineView view;
    view.resize(640, 480);
    QObject::connect(&view, &QWebEngineView::loadFinished, [](bool) {
        std::puts("shown");
        std::fflush(stdout);
    });
    view.setHtml("<html><body>A page</body></html>");
    view.show();
    return QApplication::exec();
}
