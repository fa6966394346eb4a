#include <QEventLoop>
#include <QTimer>

#include "platform/machine/Machine.h"
#include "platform/windows/Wnd.h"
#include "src/app/MainFrame.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/Request.h"
#include "tools/drive/script/TraceJson.h"

/// Starting and ending the program, answers to its message boxes, and the trace of what it did.
namespace drive {

using namespace platform;

namespace {

void tellWhetherRunning(Request& request, Program& program) {
    request.whenIdle([&program](Request& done) {
        done.set("running", program.running());
        if (const std::optional<int> code = program.exitCode()) done.set("exitCode", *code);
    });
}

void start(Request& request, Program& program) {
    if (program.started()) return request.fail("the program was started before");
    tellWhetherRunning(request, program);
    program.start();
}

void close(Request& request, Program& program) {
    if (!program.running()) return request.fail("the program is not running");
    if (Program::frame() == nullptr) return request.fail("there is no main window yet");
    tellWhetherRunning(request, program);
    Program::frame()->PostMessage(WM_CLOSE);
}

void wait(Request& request, Program&) {
    const std::optional<int> milliseconds = number<int>(request.argument(0));
    if (!milliseconds || *milliseconds < 0)
        return request.fail("no number of milliseconds: " + request.argument(0));
    const Request::Hold hold(request);
    QEventLoop loop;
    QTimer::singleShot(*milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void answer(Request& request, Program&) {
    std::vector<BoxAnswer> answers;
    for (const std::string& word : request.argumentsFrom(0)) {
        const std::optional<BoxAnswer> button = boxAnswerByName(word);
        if (!button) return request.fail("no button is named " + word);
        answers.push_back(*button);
    }
    machine().queueAnswers(answers);
}

void trace(Request& request, Program&) {
    request.whenIdle([](Request& done) { done.set("trace", traceJson(machine().trace().take())); });
}

constexpr Command programTable[] = {
    {"start", 0, 0, start},           {"close", 0, 0, close}, {"wait", 1, 1, wait},
    {"answer", 1, anyNumber, answer}, {"trace", 0, 0, trace},
};

}  // namespace

std::span<const Command> programCommands() { return programTable; }

}  // namespace drive
