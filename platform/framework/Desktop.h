#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/machine/MachineConfig.h"

class QApplication;

namespace platform {

class PrintDialogTexts;

/// The connection to the user's desktop: the process made ready for windows and the web browser. Stands
/// before any window and outlives all of them; one in a process.
class Desktop {
  public:
    /// Takes its own arguments off the list, which lives on.
    Desktop(int& argc, char** argv);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// The first screen.
    ScreenConfig screen() const;
    /// The metrics that follow from it, by name: the size of a maximised window, whose borders lie outside.
    std::map<std::string, int, std::less<>> metrics() const;

    /// Its default printer; where there is none, A4 pages that land as PDF files among the user's documents.
    PrinterConfig printer() const;

  private:
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<PrintDialogTexts> printDialogTexts_;
};

}  // namespace platform
