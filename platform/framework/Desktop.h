#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/machine/MachineConfig.h"

class QApplication;

namespace platform {

class PrintDialogTexts;

/// The connection to the user's desktop. It prepares the process for windows and the web browser. One object
/// per process; it exists before any window and outlives all of them.
class Desktop {
  public:
    /// Removes its own arguments from the list, which must outlive the object.
    Desktop(int& argc, char** argv);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// Whether the host allows the sandbox in which pages are locked, or someone has switched that off.
    bool allowsSandbox() const { return allowsSandbox_; }

    /// The first screen.
    ScreenConfig screen() const;
    /// The metrics that depend on the screen, by name: the size of a maximised window, whose borders are
    /// outside the screen.
    std::map<std::string, int, std::less<>> metrics() const;

    /// The desktop's default printer. If there is none, documents have A4 pages and become PDF files in the
    /// user's documents folder.
    PrinterConfig printer() const;

  private:
    bool allowsSandbox_;
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<PrintDialogTexts> printDialogTexts_;
};

}  // namespace platform
