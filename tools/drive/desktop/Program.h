#pragma once

#include <optional>

namespace kalyxo {
class CKalyxoApp;
class CKalyxoView;
class CMainFrame;
}  // namespace kalyxo

namespace drive {

/// The program under the driver, which is started once at most.
class Program {
  public:
    explicit Program(kalyxo::CKalyxoApp& application) : m_application(application) {}

    /// Runs the start-up sequence.
    void start();
    bool started() const { return m_started; }
    /// From the start to the end of the main window, or to a start-up sequence that failed.
    bool running() const;
    /// Once it has ended.
    std::optional<int> exitCode();

    /// Null while the main window does not exist.
    static kalyxo::CMainFrame* frame();
    static kalyxo::CKalyxoView* view();

  private:
    kalyxo::CKalyxoApp& m_application;
    bool m_started = false;
    bool m_starting = false;
    std::optional<int> m_exitCode;
};

}  // namespace drive
