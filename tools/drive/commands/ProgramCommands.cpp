#include <QEventLoop>
#include <QTimer>

#include "platform/machine/Machine.h"
#include "platform/windows/Wnd.h"
#include "src/app/MainFrame.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/TraceJson.h"

/// Starting and ending the program, and what the machine saw of it.
namespace drive {

using namespace platform;

namespace {

void tellWhetherRunning(Act& act, Program& program) {
    act.whenIdle([&program](Act& done) {
        done.set("running", program.running());
        if (const std::optional<int> code = program.exitCode()) done.set("exitCode", *code);
    });
}

void start(Act& act, Program& program) {
    if (program.started()) return act.fail("the program was started before");
    tellWhetherRunning(act, program);
    program.start();
}

void close(Act& act, Program& program) {
    if (!program.running()) return act.fail("the program is not running");
    if (Program::frame() == nullptr) return act.fail("there is no main window yet");
    tellWhetherRunning(act, program);
    Program::frame()->PostMessage(WM_CLOSE);
}

void wait(Act& act, Program&) {
    const std::optional<int> milliseconds = number<int>(act.word(0));
    if (!milliseconds || *milliseconds < 0) return act.fail("no number of milliseconds: " + act.word(0));
    const Act::Hold hold(act);
    QEventLoop loop;
    QTimer::singleShot(*milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void answer(Act& act, Program&) {
    std::vector<BoxAnswer> answers;
    for (const std::string& word : act.wordsFrom(0)) {
        const std::optional<BoxAnswer> button = boxAnswerByName(word);
        if (!button) return act.fail("no button is named " + word);
        answers.push_back(*button);
    }
    machine().queueAnswers(answers);
}

void trace(Act& act, Program&) {
    act.whenIdle([](Act& done) { done.set("trace", traceJson(machine().trace().take())); });
}

constexpr Command kProgramCommands[] = {
    {"start", 0, 0, start}, {"close", 0, 0, close}, {"wait", 1, 1, wait}, {"answer", 1, kAnyNumber, answer},
    {"trace", 0, 0, trace},
};

}  // namespace

std::span<const Command> programCommands() { return kProgramCommands; }

}  // namespace drive
