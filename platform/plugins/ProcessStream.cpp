#include "platform/plugins/ProcessStream.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QMetaObject>
#include <array>
#include <cerrno>
#include <csignal>

namespace platform {

ProcessStream::ProcessStream(const QString& program, const QStringList& arguments, const FileHandle& input) {
    open(ReadOnly | Unbuffered);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return;
    output_ = ends[0];
    ::fcntl(output_, F_SETFL, O_NONBLOCK);
    start(program, arguments, input.descriptor(), ends[1]);
    ::close(ends[1]);
    notifier_ = std::make_unique<QSocketNotifier>(output_, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        // Until everything that is there has been read.
        notifier_->setEnabled(false);
        emit readyRead();
    });
}

ProcessStream::~ProcessStream() {
    process_.kill();
    process_.waitForFinished();
    notifier_.reset();
    if (output_ >= 0) ::close(output_);
}

void ProcessStream::start(const QString& program, const QStringList& arguments, int input, int output) {
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setChildProcessModifier([input, output] {
        ::dup2(input, STDIN_FILENO);
        ::dup2(output, STDOUT_FILENO);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    process_.start(program, arguments, QIODevice::ReadOnly);
}

qint64 ProcessStream::readData(char* data, qint64 maxSize) {
    if (output_ < 0) return -1;
    ssize_t length = -1;
    do {
        length = ::read(output_, data, static_cast<std::size_t>(maxSize));
    } while (length < 0 && errno == EINTR);
    if (length > 0) return length;
    if (length < 0 && errno == EAGAIN) {
        watch();
        return 0;
    }
    // The end is told by the device's own thread, and once only.
    QMetaObject::invokeMethod(this, &QIODevice::readChannelFinished, Qt::QueuedConnection);
    return -1;
}

void ProcessStream::watch() {
    QMetaObject::invokeMethod(
        this, [this] { notifier_->setEnabled(true); }, Qt::QueuedConnection);
}

}  // namespace platform
