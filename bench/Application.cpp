#include "bench/Application.h"

#include <QApplication>
#include <array>

void needApplication() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static std::array<char, 13> name{"kalyxo-bench"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static const QApplication application(count, arguments.data());
}
