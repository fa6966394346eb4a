#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "tools/drive/desktop/Program.h"
#include "tools/drive/script/IdleWatch.h"
#include "tools/drive/script/ScriptReader.h"

namespace drive {

class Request;
struct Command;

/// Carries a script out, one command at a time. Each runs in an event of its own and is answered when the
/// program is idle again.
class Session : public QObject {
  public:
    /// `script` is an open file; the answers go to standard output. After the last line the application
    /// object's event loop ends with 0, or with 2 when the script cannot be read.
    Session(int script, kalyxo::CKalyxoApp& application);
    ~Session() override;

    /// Asks for the first line.
    void begin() { reader_.next(); }
    bool programRuns() const { return program_.running(); }

  private:
    bool takeLine(const std::string& line);
    void carryOut(const std::shared_ptr<Request>& request, const Command& command);
    bool isBusy() const;
    void answer();
    void giveUp();
    static void endOfScript(bool failed);

    Program program_;
    IdleWatch watch_;
    ScriptReader reader_;
    std::shared_ptr<Request> request_;
};

}  // namespace drive
