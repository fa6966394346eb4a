#include <filesystem>

#include "platform/printing/PrintJob.h"
#include "platform/windows/PrinterDC.h"
#include "tests/platform_windows/TestProgram.h"
#include "tests/support/TestFolder.h"

namespace windows_test {

using namespace platform;

namespace {

namespace fs = std::filesystem;

/// A desktop without a printer: what is printed lands in the user's folder, which may not be there.
class PrintFileTest : public ProgramTest {
  protected:
    PrintFileTest() {
        setPrintListener([this](const std::string& file, bool written) {
            told_.push_back(fs::path(file).lexically_relative(root_.path()).string() +
                            (written ? " written" : " not"));
        });
    }
    ~PrintFileTest() override { setPrintListener({}); }

    /// Prints an empty page; whether it was begun.
    bool printTo(const fs::path& folder) {
        MachineConfig config;
        config.printer = PrinterConfig();
        config.printer->folder = folder;
        Machine desktop(root_.path(), config, Registry());
        setMachine(&desktop);
        const bool begun = CPrinterDC::Start("page").has_value();
        setMachine(&machine_);
        return begun;
    }

    TestFolder root_;
    Lines told_;
};

TEST_F(PrintFileTest, TellsOfEachFileAndMakesItsFolder) {
    EXPECT_TRUE(printTo(root_ / "user/Documents"));
    EXPECT_TRUE(printTo(root_ / "user/Documents"));
    EXPECT_EQ(told_, (Lines{"user/Documents/print-1.pdf written", "user/Documents/print-2.pdf written"}));
    EXPECT_GT(fs::file_size(root_ / "user/Documents/print-2.pdf"), 100U);
}

TEST_F(PrintFileTest, TellsOfAFileThatCannotBeWritten) {
    root_.write("file", "no folder");
    EXPECT_FALSE(printTo(root_ / "file/Documents"));
    {
        const FullDisk disk(100);
        EXPECT_TRUE(printTo(root_ / "full"));
    }
    EXPECT_EQ(told_, (Lines{"file/Documents/print-1.pdf not", "full/print-1.pdf not"}));
    EXPECT_FALSE(fs::exists(root_ / "full/print-1.pdf"));
}

}  // namespace

}  // namespace windows_test
