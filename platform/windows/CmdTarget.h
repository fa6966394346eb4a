#pragma once

#include <cstdint>
#include <span>

#include "platform/base/Messages.h"
#include "platform/base/Object.h"
#include "platform/components/Variant.h"

namespace platform {

class CCmdTarget;
struct NMHDR;

/// State of one command while its enabling rule runs. A command that has a handler starts enabled.
class CCmdUI {
  public:
    explicit CCmdUI(UINT id) : m_nID(id) {}
    UINT m_nID;
    void Enable(bool on = true) { enabled_ = on; }
    void SetCheck(bool on = true) { checked_ = on; }
    bool enabled() const { return enabled_; }
    bool checked() const { return checked_; }

  private:
    bool enabled_ = true;
    bool checked_ = false;
};

/// One row of a message map; exactly one of the four functions is set.
struct MessageMapEntry {
    UINT id;  ///< message number, or command id for commands and their rules, or controlCode for controls
    LRESULT (*message)(CCmdTarget&, WPARAM, LPARAM) = nullptr;
    void (*command)(CCmdTarget&) = nullptr;
    void (*update)(CCmdTarget&, CCmdUI&) = nullptr;
    LRESULT (*notify)(CCmdTarget&, NMHDR&) = nullptr;
};

/// A class's rows and its base class's map.
struct MessageMap {
    const MessageMap* base;
    std::span<const MessageMapEntry> entries;
};

/// One handled event of a hosted control.
struct EventSinkEntry {
    int controlId;
    std::int32_t dispid;
    bool (*handler)(CCmdTarget&, std::span<Variant> arguments);
};

struct EventSinkMap {
    const EventSinkMap* base;
    std::span<const EventSinkEntry> entries;
};

/// What a command message asks for.
enum class CommandMessage { execute, update };

/// Receives messages, commands and events through its maps.
class CCmdTarget : public CObject {
  public:
    virtual const MessageMap* GetMessageMap() const { return nullptr; }
    virtual const EventSinkMap* GetEventSinkMap() const { return nullptr; }

    /// Carries out a command or runs its rule, by this object's map and then by whatever the class
    /// routes to. Returns whether anything had a handler: for `update` with no rule but a command
    /// handler the state stays enabled and the result is true.
    virtual bool OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui);

    /// Hands an event to the sink map; false when it is not handled.
    bool OnEvent(int controlId, std::int32_t dispid, std::span<Variant> arguments);

  protected:
    /// The row for a window message, or null.
    const MessageMapEntry* findMessage(UINT message) const;
    /// Hands a control's notification to its handler, if there is one, and marks it as handled.
    LRESULT handleNotification(NMHDR& notification);
};

}  // namespace platform
