#include "src/pages/ContentChanges.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

class ContentChangesTest : public testing::Test {
  protected:
    /// Writes the start page as a compiler does some seconds after the last time.
    void makeContent() {
        drives_.put("D:\\a.htm", "start");
        time_ += std::chrono::seconds(2);
        std::filesystem::last_write_time(drives_.host("D:\\a.htm"), time_);
    }

    TestDrives drives_;
    std::filesystem::file_time_type time_ = std::filesystem::file_time_type::clock::now();
};

TEST_F(ContentChangesTest, AreToldOnceEach) {
    makeContent();
    ContentChanges changes(drives_.files, "D:\\");
    EXPECT_FALSE(changes.HaveCome());
    makeContent();
    EXPECT_TRUE(changes.HaveCome());
    EXPECT_FALSE(changes.HaveCome());
}

// While the folder is exchanged there may be none for a moment.
TEST_F(ContentChangesTest, AFolderThatIsGoneIsNoneUntilItIsBack) {
    makeContent();
    ContentChanges changes(drives_.files, "D:\\");
    std::filesystem::remove(drives_.host("D:\\a.htm"));
    EXPECT_FALSE(changes.HaveCome());
    makeContent();
    EXPECT_TRUE(changes.HaveCome());
}

TEST_F(ContentChangesTest, TheFirstContentIsOneToo) {
    ContentChanges changes(drives_.files, "D:\\");
    EXPECT_FALSE(changes.HaveCome());
    makeContent();
    EXPECT_TRUE(changes.HaveCome());
}

}  // namespace
}  // namespace kalyxo
