#include <gtest/gtest.h>

#include <QApplication>
#include <optional>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Listing the tests needs no window system.
    std::optional<QApplication> application;
    if (!::testing::GTEST_FLAG(list_tests)) application.emplace(argc, argv);
    return RUN_ALL_TESTS();
}
