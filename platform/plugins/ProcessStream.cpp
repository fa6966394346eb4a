#include "platform/plugins/ProcessStream.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QMetaObject>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/plugins/ConversionLimits.h"
#include "platform/plugins/ProcessTurns.h"

namespace platform {

namespace {

void limitTo(__rlimit_resource_t resource, rlim_t most) {
    const rlimit limit{most, most};
    ::setrlimit(resource, &limit);
}

/// Between fork and exec, where only calls of the system are safe.
void setUpProgram(int input, int output) {
    ::dup2(input, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    limitTo(RLIMIT_AS, conversion::maxMemory);
    limitTo(RLIMIT_CPU, conversion::maxProcessorSeconds);
    limitTo(RLIMIT_FSIZE, 0);
    limitTo(RLIMIT_CORE, 0);
}

}  // namespace

ProcessStream::ProcessStream(const QString& program, const QStringList& arguments,
                             std::unique_ptr<QFile> input)
    : input_(std::move(input)) {
    open(ReadOnly | Unbuffered);
    if (!input_ || !makePipe()) return;
    notifier_ = std::make_unique<QSocketNotifier>(readEnd_, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        // Until everything that is there has been read.
        notifier_->setEnabled(false);
        emit readyRead();
    });
    process_.setProgram(program);
    process_.setArguments(arguments);
    connect(&process_, &QProcess::finished, this, [this] { ProcessTurns::instance().leave(*this); });
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) ProcessTurns::instance().leave(*this);
    });
    if (!ProcessTurns::instance().enter(*this)) closeProgramEnd();
}

ProcessStream::~ProcessStream() {
    process_.disconnect(this);
    process_.kill();
    process_.waitForFinished();
    ProcessTurns::instance().leave(*this);
    notifier_.reset();
    closeProgramEnd();
    if (readEnd_ >= 0) ::close(readEnd_);
}

bool ProcessStream::makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    std::tie(readEnd_, programEnd_) = std::pair(ends[0], ends[1]);
    return ::fcntl(readEnd_, F_SETFL, O_NONBLOCK) == 0;
}

void ProcessStream::closeProgramEnd() {
    if (programEnd_ >= 0) ::close(std::exchange(programEnd_, -1));
}

void ProcessStream::begin() {
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setChildProcessModifier(
        [input = input_->handle(), output = programEnd_] { setUpProgram(input, output); });
    process_.start(QIODevice::ReadOnly);
    closeProgramEnd();
}

qint64 ProcessStream::readData(char* data, qint64 maxSize) {
    if (readEnd_ < 0) return -1;
    ssize_t length = -1;
    do {
        length = ::read(readEnd_, data, static_cast<std::size_t>(maxSize));
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
    QMetaObject::invokeMethod(this, [this] { notifier_->setEnabled(true); }, Qt::QueuedConnection);
}

}  // namespace platform
