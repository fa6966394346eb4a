#include "tools/drive/Session.h"

#include <QCoreApplication>
#include <chrono>
#include <cstdio>
#include <utility>

#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Clipboard.h"
#include "tools/drive/desktop/Components.h"
#include "tools/drive/script/Request.h"
#include "tools/drive/script/Words.h"

namespace drive {

namespace {

constexpr int scriptUnreadable = 2;

/// Far longer than any command takes that comes to an end.
constexpr std::chrono::seconds maxWait(50);

void print(const Json& answer) {
    std::printf("%s\n", toLine(answer).c_str());
    std::fflush(stdout);
}

}  // namespace

Session::Session(int script, kalyxo::CKalyxoApp& application)
    : program_(application),
      watch_([this] { return isBusy(); }, [this] { answer(); }, [this] { giveUp(); }, maxWait),
      reader_(script, [this](const std::string& line) { return takeLine(line); }, &Session::endOfScript) {
    watchClipboard(*this);
}

Session::~Session() = default;

bool Session::takeLine(const std::string& line) {
    const auto words = splitWords(line);
    if (!words) {
        print(refusal(line, "a quote is not closed, or stands in a word"));
        return false;
    }
    if (words->empty()) return false;
    const Command* command = findCommand(words->front());
    if (command == nullptr) {
        print(refusal(words->front(), "there is no such command"));
        return false;
    }
    const std::size_t count = words->size() - 1;
    if (count < command->minArguments || count > command->maxArguments) {
        print(refusal(words->front(), "it takes another number of arguments"));
        return false;
    }
    request_ = std::make_shared<Request>(*words);
    // In an event of its own, because it may run a dialog's event loop, in which the next lines are read.
    QMetaObject::invokeMethod(
        this, [this, request = request_, command] { carryOut(request, *command); }, Qt::QueuedConnection);
    return true;
}

void Session::carryOut(const std::shared_ptr<Request>& request, const Command& command) {
    watch_.begin();
    command.carryOut(*request, program_);
}

bool Session::isBusy() const { return request_->held() || anyComponentBusy(); }

/// Refuses a command whose answer may never be complete.
void Session::giveUp() {
    print(refusal(std::exchange(request_, nullptr)->name(), "the program does not come to rest"));
    reader_.next();
}

void Session::answer() {
    print(std::exchange(request_, nullptr)->answer());
    reader_.next();
}

void Session::endOfScript(bool failed) { QCoreApplication::exit(failed ? scriptUnreadable : 0); }

}  // namespace drive
