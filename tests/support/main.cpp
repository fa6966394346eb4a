#include <gtest/gtest.h>

#include <QApplication>
#include <optional>

/// The main program of tests with widgets.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // A mere listing of the tests may have no display to use.
    std::optional<QApplication> application;
    if (!testing::GTEST_FLAG(list_tests)) application.emplace(argc, argv);
    return RUN_ALL_TESTS();
}
