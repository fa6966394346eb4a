#include "platform/windows/CmdTarget.h"

#include "platform/base/ControlMessages.h"

namespace platform {

namespace {

/// The first row with this id for which `wanted` holds, from the class itself down to its bases.
template <class Predicate>
const MessageMapEntry* findRow(const MessageMap* map, UINT id, Predicate wanted) {
    for (; map; map = map->base) {
        for (const MessageMapEntry& row : map->entries) {
            if (row.id == id && wanted(row)) return &row;
        }
    }
    return nullptr;
}

}  // namespace

const MessageMapEntry* CCmdTarget::findMessage(UINT message) const {
    return findRow(GetMessageMap(), message, [](const MessageMapEntry& row) { return row.message; });
}

LRESULT CCmdTarget::handleNotification(NMHDR& notification) {
    const UINT code = controlCode(notification.idFrom, notification.code);
    const MessageMapEntry* const handler =
        findRow(GetMessageMap(), code, [](const MessageMapEntry& row) { return row.notify; });
    if (!handler) return 0;
    notification.handled = true;
    return handler->notify(*this, notification);
}

bool CCmdTarget::OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) {
    const MessageMap* const map = GetMessageMap();
    const MessageMapEntry* const handler =
        findRow(map, id, [](const MessageMapEntry& row) { return row.command; });
    if (what == CommandMessage::execute) {
        if (handler) handler->command(*this);
        return handler != nullptr;
    }
    const MessageMapEntry* const rule =
        findRow(map, id, [](const MessageMapEntry& row) { return row.update; });
    if (rule && ui) rule->update(*this, *ui);
    return rule || handler;
}

bool CCmdTarget::OnEvent(int componentId, std::int32_t dispid, std::span<Variant> arguments) {
    for (const EventSinkMap* map = GetEventSinkMap(); map; map = map->base) {
        for (const EventSinkEntry& row : map->entries) {
            if (row.componentId == componentId && row.dispid == dispid) return row.handler(*this, arguments);
        }
    }
    return false;
}

}  // namespace platform
