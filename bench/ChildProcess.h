#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

/// A program started with pipes to its standard input and output; ended with the object.
class ChildProcess {
  public:
    /// `arguments[0]` is the program's path.
    explicit ChildProcess(const std::vector<std::string>& arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    void writeLine(const std::string& line);
    /// The next line of its output; empty at the end.
    std::string readLine();

    /// Memory of the process and all its descendants, shared pages divided among their users, in bytes.
    std::size_t memory() const;
    /// Processor time that the process and its present descendants have used, in seconds.
    double processorSeconds() const;
    /// Waits until it ends by itself; whether it ended well.
    bool succeeded();

  private:
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
    pid_t pid_ = -1;
    File input_{nullptr, &std::fclose};
    File output_{nullptr, &std::fclose};
};
