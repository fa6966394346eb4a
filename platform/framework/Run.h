#pragma once

namespace platform {

class CWinApp;

/// Runs the program: the start-up sequence, then until the main frame is gone, then its end. Needs the
/// QApplication and the machine; whatever has to stand before the QApplication is the caller's business. No
/// window or control of the program is left when it returns. Returns the exit code.
int RunProgram(CWinApp& app);

/// The last part of RunProgram, for those who let the program run by other means than its own event loop:
/// ends what windows are left and returns the exit code.
int EndProgram(CWinApp& app);

}  // namespace platform
