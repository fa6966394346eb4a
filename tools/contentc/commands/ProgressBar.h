#pragma once

#include <chrono>
#include <string>

namespace contentc {

/// A line on the terminal that tells how far long work is. It shows after half a second, only on a terminal,
/// and goes when the object does.
class ProgressBar {
  public:
    explicit ProgressBar(std::string title);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(std::size_t done, std::size_t all);

  private:
    std::string title_;
    std::chrono::steady_clock::time_point begin_;
    bool isTerminal_;
    bool isShown_ = false;
};

}  // namespace contentc
