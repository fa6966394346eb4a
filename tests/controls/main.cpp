#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

// The application object comes only once tests run, for a mere listing of the tests may have no display to
// use.
class WithApplication : public testing::Environment {
  public:
    void SetUp() override { application_ = std::make_unique<QApplication>(count_, arguments_); }
    void TearDown() override { application_.reset(); }

  private:
    int count_ = 1;
    char name_[15] = "controls-tests";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    auto environment = std::make_unique<WithApplication>();
    testing::AddGlobalTestEnvironment(environment.release());  // freed by the framework
    return RUN_ALL_TESTS();
}
