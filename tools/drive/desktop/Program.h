#pragma once

#include <optional>

namespace kalyxo {
class CKalyxoApp;
class CKalyxoView;
class CMainFrame;
}  // namespace kalyxo

namespace drive {

/// The program that the driver runs. It can be started once.
class Program {
  public:
    explicit Program(kalyxo::CKalyxoApp& application) : application_(application) {}

    /// Runs the start-up sequence.
    void start();
    bool started() const { return started_; }
    /// True from the start until the main window has gone or the start-up sequence has failed.
    bool running() const;
    /// The exit code; nothing before the program has ended.
    std::optional<int> exitCode();

    /// The main window and its view; null while they do not exist.
    static kalyxo::CMainFrame* frame();
    static kalyxo::CKalyxoView* view();

  private:
    kalyxo::CKalyxoApp& application_;
    bool started_ = false;
    bool starting_ = false;
    std::optional<int> exitCode_;
};

}  // namespace drive
