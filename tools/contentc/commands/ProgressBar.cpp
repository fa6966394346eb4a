#include "tools/contentc/commands/ProgressBar.h"

#include <unistd.h>

#include <iostream>

namespace contentc {
namespace {

constexpr std::chrono::milliseconds patience{500};
constexpr std::size_t width = 30;
constexpr const char* eraseLine = "\r\033[K";

}  // namespace

ProgressBar::ProgressBar(std::string title)
    : title_(std::move(title)),
      begin_(std::chrono::steady_clock::now()),
      isTerminal_(::isatty(STDERR_FILENO) != 0) {}

ProgressBar::~ProgressBar() {
    if (isShown_) std::cerr << eraseLine << std::flush;
}

void ProgressBar::show(std::size_t done, std::size_t all) {
    if (!isTerminal_ || all == 0 || std::chrono::steady_clock::now() - begin_ < patience) return;
    isShown_ = true;
    const std::size_t filled = width * done / all;
    std::cerr << eraseLine << '[' << std::string(filled, '#') << std::string(width - filled, ' ') << "] "
              << done << '/' << all << ' ' << title_ << std::flush;
}

}  // namespace contentc
