#pragma once

#include "framework/object.h"

class CCmdTarget;

/// What a message-map handler is called with; a thunk picks what it needs.
struct AFX_HANDLER_CALL {
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT id = 0;             ///< commands and notifications: the control's id
    NMHDR* header = nullptr; ///< notifications only
    LRESULT result = 0;      ///< what the message returns
    bool handled = true;     ///< cleared by a handler that leaves the message to the default
};

/// Calls the handler of an entry on an object of the map's class.
using AFX_HANDLER = void (*)(CCmdTarget& target, AFX_HANDLER_CALL& call);

/// A row of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT message; ///< the window message; WM_COMMAND or WM_NOTIFY for those
    UINT code;    ///< notification code, 0 for commands and plain messages
    UINT firstId; ///< control ids from firstId to lastId, both included
    UINT lastId;
    AFX_HANDLER handler; ///< null ends the map
};

/// A class's message map and the way to its base class's.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*baseMap)(); ///< null at the root
    const AFX_MSGMAP_ENTRY* entries;
};

/// The code under which a command from a menu or an accelerator is routed; the
/// same number as BN_CLICKED, so a command entry catches buttons too.
constexpr int CN_COMMAND = 0;

/// A class whose objects handle messages through a message map.
class CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

    /// Hands a command (WM_COMMAND code) or a notification to the handler in
    /// the map; false when there is none. For a notification `code` is its code,
    /// `notify` its header and `result` takes what is returned to the control;
    /// both are null for a command.
    virtual BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result);

  protected:
    CCmdTarget() = default;
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    /// The entry for a message in this class's map or the nearest base's.
    const AFX_MSGMAP_ENTRY* FindMessageEntry(UINT message, UINT code, UINT id) const;
};
