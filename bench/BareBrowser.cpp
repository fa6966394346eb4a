#include <unistd.h>

#include <QApplication>
#include <QWebEngineView>
#include <cstdio>

namespace {

/// Says on the standard output when anything is painted first.
class FirstPaint : public QObject {
  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (!told_ && event->type() == QEvent::Paint) {
            told_ = true;
            std::puts("shown");
            std::fflush(stdout);
        }
        return false;
    }

  private:
    bool told_ = false;
};

}  // namespace

/// The measure for start time and memory: a program that does nothing but show a page in a browser window.
int main(int argc, char** argv) {
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication application(argc, argv);
    FirstPaint firstPaint;
    QApplication::instance()->installEventFilter(&firstPaint);
    QWebEngineView view;
    view.resize(640, 480);
    view.setHtml("<html><body>A page</body></html>");
    view.show();
    return QApplication::exec();
}
