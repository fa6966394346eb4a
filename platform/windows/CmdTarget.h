#pragma once

#include <cstdint>
#include <span>

#include "platform/base/Messages.h"
#include "platform/base/Object.h"
#include "platform/components/Variant.h"

namespace platform {

class CCmdTarget;
struct NMHDR;

/// The state of one command while its update handler runs. A command that has a handler is enabled at first.
class CCmdUI {
  public:
    void Enable(bool on = true) { enabled_ = on; }
    void SetCheck(bool on = true) { checked_ = on; }
    bool Enabled() const { return enabled_; }
    bool Checked() const { return checked_; }

  private:
    bool enabled_ = true;
    bool checked_ = false;
};

/// One row of a message map; exactly one of the four functions is set.
struct MessageMapEntry {
    UINT id;  ///< message number, command id (for commands and updates), or controlCode
    LRESULT (*message)(CCmdTarget&, WPARAM, LPARAM) = nullptr;
    void (*command)(CCmdTarget&) = nullptr;
    void (*update)(CCmdTarget&, CCmdUI&) = nullptr;
    LRESULT (*notify)(CCmdTarget&, NMHDR&) = nullptr;
};

/// The rows of a class, and the map of its base class.
struct MessageMap {
    const MessageMap* base;
    std::span<const MessageMapEntry> entries;
};

/// One handled event of a hosted component.
struct EventSinkEntry {
    int componentId;
    std::int32_t dispid;
    bool (*handler)(CCmdTarget&, std::span<Variant> arguments);
};

/// The handled events of a class, and the map of its base class.
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

    /// Carries out a command or runs its update handler: that of this object's map, else those of the objects
    /// to which the class routes commands. Returns whether there was any handler. A command that only has a
    /// handler, and no update handler, stays enabled.
    virtual bool OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui);

    /// Passes an event to the sink map; false when it is not handled.
    bool OnEvent(int componentId, std::int32_t dispid, std::span<Variant> arguments);

  protected:
    /// The row for a window message, or null.
    const MessageMapEntry* findMessage(UINT message) const;
    /// Passes a control's notification to its handler, if there is one, and marks it as handled.
    LRESULT handleNotification(NMHDR& notification);
};

}  // namespace platform
