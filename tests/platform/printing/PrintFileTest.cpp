#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTabWidget>
#include <filesystem>

#include "platform/printing/PrintDialogTexts.h"
#include "platform/printing/PrintFile.h"
#include "platform/printing/PrinterDC.h"
#include "tests/support/TestFolder.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

namespace fs = std::filesystem;

/// A desktop without a printer: documents become files in a folder of the user that may not exist.
class PrintFileTest : public ProgramTest {
  protected:
    PrintFileTest() {
        setPrintListener([this](const std::string& file, bool written) {
            told_.push_back(fs::path(file).lexically_relative(root_.path()).string() +
                            (written ? " written" : " not"));
        });
    }
    ~PrintFileTest() override { setPrintListener({}); }

    /// Prints an empty page; whether it could be begun.
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

/// The texts in a dialog.
QStringList textsIn(const QWidget& dialog) {
    QStringList texts;
    for (const auto* label : dialog.findChildren<QLabel*>()) texts += label->text();
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) texts += button->text();
    for (const auto* group : dialog.findChildren<QGroupBox*>()) texts += group->title();
    for (const auto* box : dialog.findChildren<QComboBox*>()) texts += box->currentText();
    for (const auto* tabs : dialog.findChildren<QTabWidget*>())
        for (int i = 0; i < tabs->count(); ++i) texts += tabs->tabText(i);
    return texts;
}

TEST(PrintDialogTextsTest, AreGreek) {
    PrintDialogTexts greek;
    QCoreApplication::installTranslator(&greek);
    QPrinter printer;
    const QPrintDialog dialog(&printer);
    // The last entry of the list prints into a file.
    for (auto* box : dialog.findChildren<QComboBox*>()) box->setCurrentIndex(box->count() - 1);
    const QStringList texts = textsIn(dialog);
    EXPECT_GT(texts.size(), 30);
    const QRegularExpression latin(QStringLiteral("[A-Za-z]"));
    for (QString text : texts) {
        EXPECT_FALSE(text.remove(QStringLiteral("PDF")).contains(latin)) << text.toStdString();
    }
}

}  // namespace

}  // namespace windows_test
