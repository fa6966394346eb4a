#pragma once

namespace platform {

class CWinApp;

/// Runs the program: its start-up, its event loop until the main frame is gone, and its end. Needs the
/// QApplication and the machine; the caller prepares what must exist before the QApplication. When it
/// returns, all windows and controls of the program are gone. Returns the exit code.
int RunProgram(CWinApp& app);

/// The last part of RunProgram, for callers with an event loop of their own: destroys the remaining windows
/// and returns the exit code.
int EndProgram(CWinApp& app);

}  // namespace platform
