#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <cstdio>

#include "platform/base/Resources.h"
#include "platform/framework/Desktop.h"
#include "platform/framework/Run.h"
#include "platform/machine/Machine.h"
#include "platform/qt/WindowTable.h"
#include "src/app/KalyxoApp.h"
#include "src/host/MachineSetup.h"
#include "src/resources/ResourceTable.h"

namespace {

/// Says on the standard output when the view is painted first.
class FirstPaint : public QObject {
  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (!told_ && event->type() == QEvent::Paint && isView(qobject_cast<QWidget*>(receiver))) {
            told_ = true;
            std::puts("shown");
            std::fflush(stdout);
        }
        return false;
    }

  private:
    static bool isView(const QWidget* widget) {
        const platform::WindowTable& windows = platform::WindowTable::instance();
        const platform::WindowEntry* entry = windows.find(windows.handleOf(widget));
        return entry && entry->className == "CKalyxoView";
    }

    bool told_ = false;
};

}  // namespace

/// The program itself on the machine folder of its one argument, the wait of its start left out.
int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const std::string folder = argv[1];
    platform::SetResources(kalyxo::ProgramResources());
    const platform::Desktop desktop(argc, argv);
    const auto machine = platform::Machine::open(folder, kalyxo::DefaultMachineConfig());
    if (!machine) return 1;
    (*machine)->setVirtualTime(true);
    platform::setMachine((*machine).get());
    FirstPaint firstPaint;
    qApp->installEventFilter(&firstPaint);
    kalyxo::CKalyxoApp program;
    return platform::RunProgram(program);
}
