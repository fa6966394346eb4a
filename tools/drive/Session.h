#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "tools/drive/desktop/Program.h"
#include "tools/drive/script/IdleWatch.h"
#include "tools/drive/script/ScriptReader.h"

namespace drive {

class Act;
struct Command;

/// Carries a script out: a command at a time, each in an event of its own, answered at the next idle moment
/// of the program.
class Session : public QObject {
  public:
    /// `script` is an open file; the answers go to standard output. The application object's loop ends with 0
    /// behind the last line, or with 2 when the script cannot be read.
    Session(int script, kalyxo::CKalyxoApp& application);
    ~Session() override;

    /// Asks for the first line.
    void begin() { m_reader.next(); }
    bool programRuns() const { return m_program.running(); }

  private:
    bool takeLine(const std::string& line);
    void carryOut(const std::shared_ptr<Act>& act, const Command& command);
    bool isBusy() const;
    void answer();
    static void endOfScript(bool failed);

    Program m_program;
    IdleWatch m_watch;
    ScriptReader m_reader;
    std::shared_ptr<Act> m_act;
};

}  // namespace drive
