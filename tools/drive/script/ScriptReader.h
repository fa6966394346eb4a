#pragma once

#include <QSocketNotifier>
#include <functional>
#include <string>

namespace drive {

/// Reads a script line by line from an open file or pipe without blocking the program that runs meanwhile.
class ScriptReader {
  public:
    /// Receives a line without its end. Returns false to be given the next line at once, because this one
    /// holds nothing to carry out.
    using LineHandler = std::function<bool(const std::string&)>;

    /// `descriptor` must stay open as long as the reader exists. For each `next`, `line` receives lines until
    /// it takes one; when there are no more, `end` is called.
    ScriptReader(int descriptor, LineHandler line, std::function<void(bool failed)> end);

    /// Asks for the next line.
    void next();

  private:
    void read();
    bool giveLines();

    int descriptor_;
    LineHandler line_;
    std::function<void(bool)> end_;
    QSocketNotifier notifier_;
    std::string bytes_;
};

}  // namespace drive
