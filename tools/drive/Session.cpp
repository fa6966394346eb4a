#include "tools/drive/Session.h"

#include <QCoreApplication>
#include <cstdio>
#include <utility>

#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/ClipboardWatch.h"
#include "tools/drive/desktop/Controls.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/Words.h"

namespace drive {

namespace {

constexpr int kScriptUnreadable = 2;

void print(const Json& answer) {
    std::printf("%s\n", toLine(answer).c_str());
    std::fflush(stdout);
}

}  // namespace

Session::Session(int script, kalyxo::CKalyxoApp& application)
    : m_program(application),
      m_watch([this] { return isBusy(); }, [this] { answer(); }),
      m_reader(
          script, [this](const std::string& line) { return takeLine(line); }, &Session::endOfScript) {
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
    if (count < command->least || count > command->most) {
        print(refusal(words->front(), "it takes another number of arguments"));
        return false;
    }
    m_act = std::make_shared<Act>(*words);
    // In an event of its own: it may run a dialog's event loop, in which the next lines are read.
    QMetaObject::invokeMethod(
        this, [this, act = m_act, command] { carryOut(act, *command); }, Qt::QueuedConnection);
    return true;
}

void Session::carryOut(const std::shared_ptr<Act>& act, const Command& command) {
    m_watch.begin();
    command.carryOut(*act, m_program);
}

bool Session::isBusy() const { return m_act->held() || anyControlBusy(); }

void Session::answer() {
    print(std::exchange(m_act, nullptr)->answer());
    m_reader.next();
}

void Session::endOfScript(bool failed) { QCoreApplication::exit(failed ? kScriptUnreadable : 0); }

}  // namespace drive
