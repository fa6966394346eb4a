#pragma once

#include <QSocketNotifier>
#include <functional>
#include <string>

namespace drive {

/// Reads a script a line at a time from an open file or pipe, without blocking the program that runs
/// meanwhile.
class ScriptReader {
  public:
    /// Receives a line without its end; false when there was nothing in it and the next one is wanted at
    /// once.
    using LineHandler = std::function<bool(const std::string&)>;

    /// `descriptor` stays open until the end. For each `next`, `line` receives lines until it takes one, or
    /// `end` is told that there are no more, and whether reading failed.
    ScriptReader(int descriptor, LineHandler line, std::function<void(bool failed)> end);

    /// Asks for the next line.
    void next();

  private:
    void read();
    bool giveLines();

    int m_descriptor;
    LineHandler m_line;
    std::function<void(bool)> m_end;
    QSocketNotifier m_notifier;
    std::string m_bytes;
};

}  // namespace drive
