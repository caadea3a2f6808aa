#include "framework/command_target.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static constexpr AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindMessageEntry(UINT message, UINT code, UINT id) const
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->baseMap != nullptr ? map->baseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->handler != nullptr; ++entry) {
            if (entry->message == message && entry->code == code && id >= entry->firstId &&
                id <= entry->lastId)
                return entry;
        }
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result)
{
    const UINT message = notify != nullptr ? WM_NOTIFY : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(message, static_cast<UINT>(code), id);
    if (entry == nullptr)
        return FALSE;
    AFX_HANDLER_CALL call;
    call.id = id;
    call.header = notify;
    entry->handler(*this, call);
    if (result != nullptr)
        *result = call.result;
    return TRUE;
}
