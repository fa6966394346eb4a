#pragma once

#include <QFile>
#include <QIODevice>
#include <QProcess>
#include <QSocketNotifier>
#include <QStringList>
#include <memory>

namespace platform {

/// What a program writes to its standard output, as a device that may be read in another thread than the
/// one that made it. The program begins when it is its turn (see ProcessTurns), has little memory and
/// processor time (see ConversionLimits.h), waits while nobody reads, and ends with the device.
class ProcessStream : public QIODevice {
    Q_OBJECT

  public:
    /// `input` is the program's standard input. A program that cannot be started gives a device that is at
    /// its end.
    ProcessStream(const QString& program, const QStringList& arguments, std::unique_ptr<QFile> input);
    ~ProcessStream() override;
    ProcessStream(const ProcessStream&) = delete;
    ProcessStream& operator=(const ProcessStream&) = delete;

    /// Starts the program. For ProcessTurns.
    void begin();

    bool isSequential() const override { return true; }

  protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    bool makePipe();
    void closeProgramEnd();
    void watch();

    std::unique_ptr<QFile> input_;
    int readEnd_ = -1;
    int programEnd_ = -1;  // open until the program has it
    std::unique_ptr<QSocketNotifier> notifier_;
    QProcess process_;
};

}  // namespace platform
