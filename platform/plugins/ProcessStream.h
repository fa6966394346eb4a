#pragma once

#include <QIODevice>
#include <QProcess>
#include <QSocketNotifier>
#include <QStringList>
#include <memory>

#include "platform/files/FileHandle.h"

namespace platform {

/// What a program writes to its standard output, as a device that may be read in another thread than the
/// one that made it. The program waits while nobody reads, and ends with the device.
class ProcessStream : public QIODevice {
    Q_OBJECT

  public:
    /// Starts the program with the file as its standard input. One that cannot be started gives a device that
    /// is at its end.
    ProcessStream(const QString& program, const QStringList& arguments, const FileHandle& input);
    ~ProcessStream() override;
    ProcessStream(const ProcessStream&) = delete;
    ProcessStream& operator=(const ProcessStream&) = delete;

    bool isSequential() const override { return true; }

  protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    void start(const QString& program, const QStringList& arguments, int input, int output);
    void watch();

    int output_ = -1;  // where the program's output is read
    std::unique_ptr<QSocketNotifier> notifier_;
    QProcess process_;
};

}  // namespace platform
